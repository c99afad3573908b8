// SPDX-License-Identifier: GPL-3.0-or-later
// The 64 KB that a program is assembled into.
#pragma once

#include <cstdint>
#include <vector>

namespace kav::assembler {

/// The addresses that a program can write: 0 to $FFFF.
inline constexpr std::int32_t kAddressSpace = 0x10000;

/// Memory that remembers the lowest and the highest byte written.
class Image {
  public:
    Image() : bytes_(kAddressSpace) {}

    /// Writes one byte. The address must lie in the address space.
    void put(std::int32_t address, std::uint8_t byte) {
        bytes_[static_cast<std::size_t>(address)] = byte;
        if (address < lowest_) lowest_ = address;
        if (address > highest_) highest_ = address;
    }

    [[nodiscard]] std::uint8_t at(std::int32_t address) const {
        return bytes_[static_cast<std::size_t>(address)];
    }

    [[nodiscard]] bool empty() const { return highest_ < 0; }

    /// The address of the first byte written, 0 when there is none.
    [[nodiscard]] std::uint16_t origin() const {
        return empty() ? std::uint16_t{0} : static_cast<std::uint16_t>(lowest_);
    }

    /// One block from the lowest to the highest byte written; what was skipped is zero.
    [[nodiscard]] std::vector<std::uint8_t> block() const {
        if (empty()) return {};
        return {bytes_.begin() + lowest_, bytes_.begin() + highest_ + 1};
    }

  private:
    std::vector<std::uint8_t> bytes_;
    std::int32_t lowest_ = kAddressSpace;
    std::int32_t highest_ = -1;
};

}  // namespace kav::assembler
