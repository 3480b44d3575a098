#pragma once

#include <string>
#include <string_view>

#include <QString>
#include <QStringView>

namespace purrlodge {

// The core keeps every text as Windows-1252 bytes; Qt speaks Unicode. These two
// are the only crossing between them.

// Decodes 1252 bytes. The five bytes 1252 leaves undefined (0x81, 0x8D, 0x8F,
// 0x90, 0x9D) come through as the control characters of the same number, so
// every byte survives a round trip.
[[nodiscard]] QString fromWindows1252(std::string_view bytes);

// Encodes text as 1252 bytes; a character that 1252 cannot hold becomes '?'
// (one '?' per character, even when it takes two UTF-16 units).
[[nodiscard]] std::string toWindows1252(QStringView text);

} // namespace purrlodge
