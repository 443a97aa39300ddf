#pragma once

#include <QImage>
#include <QString>

namespace velto {

// Decoding a picture may take at most this many megabytes, so a huge or hostile file cannot exhaust memory.
inline constexpr int backgroundImageAllocationLimitMb = 256;

// The picture at path, decoded with the allocation limit and its orientation applied; a null image when the
// path is empty, the file is missing or unreadable, or it would take more memory than the limit allows.
[[nodiscard]] QImage loadBackgroundImage(const QString& path, int allocationLimitMb = backgroundImageAllocationLimitMb);

} // namespace velto
