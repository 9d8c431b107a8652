#pragma once

#include <string>
#include <utility>

#include "terrain/Document.h"

namespace quillbrand {

/// stand-in until the history is merged
class HeightsChange {
  public:
    HeightsChange(Document& document, std::string /*name*/)
        : document_(document), copy_(document) {}
    HeightsChange(const HeightsChange&) = delete;
    HeightsChange& operator=(const HeightsChange&) = delete;
    ~HeightsChange() {
        if (!committed_)
            std::swap(document_, copy_);
    }
    void Commit() { committed_ = true; }

  private:
    Document& document_;
    Document copy_;
    bool committed_ = false;
};

}  // namespace quillbrand
