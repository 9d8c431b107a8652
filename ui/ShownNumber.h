#pragma once

#include <QString>

#include "base/NumberText.h"

namespace quillbrand {

/// ShownText for a field.
template <typename MakeText>
QString ShownNumber(MakeText makeText) {
    return QString::fromStdString(ShownText(makeText));
}

}  // namespace quillbrand
