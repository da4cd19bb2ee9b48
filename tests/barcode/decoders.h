// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

/// Programs that read barcodes out of images, as scanners do.
namespace decoders {

enum class Program {
    Zbar,
    Zxing,
    ZxingPure, ///< told that the image holds one symbol; it breaks down on stacked DataBar otherwise
    Dmtx
};

QString nameOf(Program program);

/// One symbol that was read.
struct Reading
{
    QString format; ///< as the program names it; empty where it reads one symbology only
    QByteArray payload;
    QString level; ///< error correction of a QR Code, where the program tells it

    bool operator==(const Reading &other) const
    {
        return format == other.format && payload == other.payload && level == other.level;
    }
};

/// What was read in each file, or why nothing could be.
struct Answer
{
    QString error;
    QHash<QString, QVector<Reading>> readings;
};

/// Has a program read image files, in as few calls as it allows. A program that is missing is an error.
Answer read(Program program, const QStringList &files);

/// For messages.
QString inWords(const QVector<Reading> &readings);

} // namespace decoders
