#pragma once

#include <string>

#include "base/Fault.h"

namespace quillbrand {

/// The text that `makeText` gives, or "?" where it faults: a file may hold any scale, and a field
/// that cannot show it must not end what runs.
template <typename MakeText>
std::string ShownNumber(MakeText makeText) {
    try {
        return makeText();
    } catch (const Fault&) {
        return "?";
    }
}

}  // namespace quillbrand
