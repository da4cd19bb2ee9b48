// SPDX-License-Identifier: MIT
#pragma once

#include "tests/barcode/decoders.h"
#include "tests/barcode/paper.h"

/// Symbols of all symbologies that a program can read, and what it has to read in them.
namespace printedsymbols {

struct Expected
{
    decoders::Program program;
    QVector<decoders::Reading> readings;
};

struct PrintedSymbol
{
    QString name;
    paper::Sheet sheet;
    QVector<Expected> expected;
    QVector<int> resolutions; ///< dots per inch
};

/// Needs an application.
QVector<PrintedSymbol> all();

} // namespace printedsymbols
