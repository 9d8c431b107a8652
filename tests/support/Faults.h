#pragma once

#include <string>

#include "base/Fault.h"

namespace quillbrand {

/// The text of the fault that ends `action`, with its title before it, as "title: text", where it
/// has one; "no fault" when none ends it.
template <typename Action>
std::string FaultOf(Action action) {
    try {
        action();
    } catch (const Fault& fault) {
        return (fault.Title().empty() ? "" : fault.Title() + ": ") + fault.what();
    }
    return "no fault";
}

}  // namespace quillbrand
