#include "data/output/WriteFile.h"

#include <QSaveFile>
#include <stdexcept>

namespace quillbrand {

void WriteFile(const QDir& folder, const std::string& name, const std::string& content) {
    QSaveFile file(folder.filePath(QString::fromStdString(name)));
    const auto size = static_cast<qint64>(content.size());
    if (!file.open(QIODevice::WriteOnly) || file.write(content.data(), size) != size ||
        !file.commit())
        throw std::runtime_error("cannot write " + file.fileName().toStdString() + ": " +
                                 file.errorString().toStdString());
}

}  // namespace quillbrand
