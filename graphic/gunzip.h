// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// Compressed files, unpacked no further than the caller can bear: a thousand bytes may unpack to a million.
namespace gunzip {

bool isCompressed(const QByteArray &bytes);

/// The first file of a gzip file. Empty where it is damaged, cut off or longer than `most` bytes.
QByteArray unpacked(const QByteArray &bytes, int most);

} // namespace gunzip
