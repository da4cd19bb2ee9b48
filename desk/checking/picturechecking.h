// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class TavroPicture;

/// What is wrong with pictures.
namespace picturechecking {

/// The first problem in words, empty without one.
QString problemOf(const TavroPicture &object);

} // namespace picturechecking
