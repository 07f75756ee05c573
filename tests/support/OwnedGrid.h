// A grid handed out by the library, taken over with its data; both are released at the end of the
// test.
#ifndef BARHATCH_TESTS_SUPPORT_OWNEDGRID_H
#define BARHATCH_TESTS_SUPPORT_OWNEDGRID_H

#include <cstddef>
#include <cstring>
#include <memory>
#include <string>

#include "barhatch.h"

namespace barhatch::test {

class OwnedGrid {
 public:
  explicit OwnedGrid(TwoDStringResult* grid)
      : record_(grid), data_(grid != nullptr ? grid->data : nullptr) {}

  bool IsNull() const { return record_ == nullptr; }
  bool IsRefused() const {
    return !IsNull() && record_->numrows == 0 && record_->numcols == 0 && data_ == nullptr;
  }
  bool HasData() const { return data_ != nullptr; }
  int Rows() const { return record_->numrows; }
  int Columns() const { return record_->numcols; }

  // "16x48", "refused" or "null".
  std::string Size() const {
    if (IsNull()) return "null";
    if (IsRefused()) return "refused";
    return std::to_string(Rows()) + "x" + std::to_string(Columns());
  }

  // The letters up to the NUL.
  std::string Letters() const { return HasData() ? std::string(data_.get()) : std::string(); }

  // The letters without the outermost ring.
  std::string Inner() const {
    std::string inner;
    const std::string letters = Letters();
    for (int row = 1; row < Rows() - 1; ++row)
      inner += letters.substr(static_cast<std::size_t>(row * Columns() + 1),
                              static_cast<std::size_t>(Columns() - 2));
    return inner;
  }

  // The outermost ring.
  std::string Ring() const {
    std::string ring;
    for (int row = 0; row < Rows(); ++row) {
      for (int column = 0; column < Columns(); ++column) {
        if (row == 0 || column == 0 || row == Rows() - 1 || column == Columns() - 1)
          ring += data_[static_cast<std::size_t>(row * Columns() + column)];
      }
    }
    return ring;
  }

 private:
  std::unique_ptr<TwoDStringResult> record_;
  std::unique_ptr<char[]> data_;
};

}  // namespace barhatch::test

#endif
