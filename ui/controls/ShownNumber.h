#pragma once

#include <QString>

#include "base/Fault.h"

namespace quillbrand {

/// The text that `makeText` gives, or "?" where it faults: a file may hold any scale, and a field
/// that cannot show it must not end what runs.
template <typename MakeText>
QString ShownNumber(MakeText makeText) {
    try {
        return QString::fromStdString(makeText());
    } catch (const Fault&) {
        return QStringLiteral("?");
    }
}

}  // namespace quillbrand
