#include <cstdio>

#include "ui/Startup.h"

int main(int argc, char** argv) {
    const auto arguments = quillbrand::ParseArguments(argc, argv);
    if (!arguments.answer.empty()) {
        std::fputs(arguments.answer.c_str(), stdout);
        return 0;
    }
    if (!quillbrand::HasDisplay(argc, argv)) {
        std::fputs("quillbrand: there is no display to open a window on\n", stderr);
        return 1;
    }
    return quillbrand::RunEditor(argc, argv);
}
