// SPDX-License-Identifier: GPL-3.0-or-later
// Bytes as letters, for pictures within a text (RFC 4648, section 4).
#include "viewer/base64.h"

#include <cstdint>

namespace kav::viewer {

std::string base64(std::string_view bytes) {
    constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string result;
    result.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t at = 0; at < bytes.size(); at += 3) {
        std::uint32_t bits = 0;
        for (std::size_t i = at; i < at + 3; ++i)
            bits = bits << 8U | (i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0U);
        for (std::size_t letter = 0; letter < 4; ++letter) {
            const bool padding = at + letter > bytes.size();
            result += padding ? '=' : kLetters[bits >> (18 - 6 * letter) & 0x3FU];
        }
    }
    return result;
}

}  // namespace kav::viewer
