// SPDX-License-Identifier: MIT
#include "bench/ratioreport.h"
#include "cells/amountcells.h"
#include "entry/chineseamount.h"
#include "entry/englishamount.h"
#include "entry/numericformat.h"

#include <QString>
#include <array>

// What each key in an amount field costs, beside the cheapest way in which Qt writes the same amount.

namespace {

constexpr std::size_t Count = 8;

std::array<QString, Count> contents()
{
    return {QStringLiteral("1234.5"),        QStringLiteral("105000.00"), QStringLiteral("88.8"),
            QStringLiteral("1234567890.12"), QStringLiteral("0.05"),      QStringLiteral("20"),
            QStringLiteral("9999999.99"),    QStringLiteral("400300.07")};
}

std::array<double, Count> values()
{
    std::array<double, Count> result;
    std::size_t i = 0;
    for (const QString &content : contents())
        result[i++] = content.toDouble();
    return result;
}

// One iteration writes one amount, each of the mixture in turn.
template <typename Input, typename Write>
void writeInTurn(benchmark::State &state, const std::array<Input, Count> &inputs, Write write)
{
    std::size_t i = 0;
    for (auto _ : state) {
        QString text = write(inputs[i]);
        benchmark::DoNotOptimize(text);
        i = (i + 1) % Count;
    }
}

void plainNumber(benchmark::State &state)
{
    writeInTurn(state, values(), [](double value) { return QString::number(value, 'f', 2); });
}

void chineseCapitals(benchmark::State &state)
{
    writeInTurn(state, contents(),
                [](const QString &content) { return chineseamount::amountText(content, Format_RmbCapital); });
}

void englishWords(benchmark::State &state)
{
    writeInTurn(state, contents(), [](const QString &content) { return englishamount::amountText(content); });
}

void numericPattern(benchmark::State &state)
{
    writeInTurn(state, values(),
                [pattern = QStringLiteral("#,##0.00")](double value) { return numericformat::format(pattern, value); });
}

// Content to cells and back.
void throughCells(benchmark::State &state, const _UnitRange &range, int firstKept, const amountcells::Style &style)
{
    writeInTurn(state, contents(), [=](const QString &content) {
        QStringList cells = amountcells::digitsOf(content, range, amountcells::cellCount(range));
        amountcells::removeLeadingZeros(&cells, firstKept);
        return amountcells::amountOf(cells, range.start, style);
    });
}

void separatedCells(benchmark::State &state)
{
    constexpr _UnitRange range = {0, 6};
    throughCells(state, range, amountcells::indexOfUnit(range, amountcells::Yuan), amountcells::SeparatedRow);
}

void gridCells(benchmark::State &state)
{
    throughCells(state, {0, 11}, -1, amountcells::Grid);
}

} // namespace

int main(int argc, char **argv)
{
    benchmark::RegisterBenchmark("plainNumber", plainNumber);
    benchmark::RegisterBenchmark("chineseCapitals", chineseCapitals);
    benchmark::RegisterBenchmark("englishWords", englishWords);
    benchmark::RegisterBenchmark("numericPattern", numericPattern);
    benchmark::RegisterBenchmark("separatedCells", separatedCells);
    benchmark::RegisterBenchmark("gridCells", gridCells);
    return runWithRatios(argc, argv,
                         {{"chineseCapitals", "plainNumber", 4},
                          {"englishWords", "plainNumber", 6},
                          {"numericPattern", "plainNumber", 6},
                          {"separatedCells", "plainNumber", 4},
                          {"gridCells", "plainNumber", 4}});
}
