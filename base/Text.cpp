#include "base/Text.h"

#include <QString>
#include <QStringDecoder>
#include <algorithm>

#include "base/Fault.h"
#include "base/Stdio.h"

namespace quillbrand {

std::string LowerCase(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    return lower;
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
    return LowerCase(a) == LowerCase(b);
}

std::string ToLatin1(const std::string& text) {
    const QString letters = QString::fromStdString(text);
    if (std::any_of(letters.begin(), letters.end(), [](QChar c) { return c.unicode() > 0xff; }))
        throw Fault("the name \"" + text + "\" cannot be stored: it has letters beyond Latin-1");
    return letters.toLatin1().toStdString();
}

std::string ToUtf8(const std::string& text) {
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString letters = decode(QByteArray::fromStdString(text));
    return decode.hasError() ? QString::fromLatin1(QByteArray::fromStdString(text)).toStdString()
                             : letters.toStdString();
}

std::string TrimIni(std::string_view text) {
    return STDIO::TrimmedText(text.substr(0, text.find('\0')));
}

}  // namespace quillbrand
