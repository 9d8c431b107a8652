#pragma once

namespace quillbrand {

/// The requests for memory, by `new` or for whole grids, of the program that links this; one of
/// them can be made to fail.
struct MemoryRequests {
    static inline int count = 0;
    static inline int failing = -1;  ///< the one that finds none, by its number; -1: none fails

    static void CountAndFail(int request) {
        count = 0;
        failing = request;
    }
};

}  // namespace quillbrand
