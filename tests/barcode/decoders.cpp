// SPDX-License-Identifier: MIT
#include "tests/barcode/decoders.h"

#include <QProcess>
#include <QStandardPaths>
#include <QXmlStreamReader>

namespace decoders {

namespace {

struct Output
{
    QString error;
    QByteArray text;
};

// Exit codes differ for "nothing read"; only a program that breaks down has failed.
Output outputOf(const QString &program, const QStringList &arguments)
{
    const QString path = QStandardPaths::findExecutable(program);
    if (path.isEmpty())
        return {QStringLiteral("%1 is not installed, see scripts/deps").arg(program), {}};
    QProcess process;
    process.start(path, arguments);
    constexpr int patience = 120000;
    if (!process.waitForFinished(patience) || process.exitStatus() != QProcess::NormalExit)
        return {QStringLiteral("%1 broke down: %2")
                    .arg(program, QString::fromLocal8Bit(process.readAllStandardError()).trimmed()),
                {}};
    return {{}, process.readAllStandardOutput()};
}

// The XML of zbarimg garbles bytes beyond ASCII, its plain output does not.
Output bytesByZbar(const QString &file)
{
    return outputOf(QStringLiteral("zbarimg"),
                    {QStringLiteral("--nodbus"), QStringLiteral("--quiet"), QStringLiteral("--raw"),
                     QStringLiteral("--oneshot"), QStringLiteral("-Sbinary"), file});
}

Answer readByZbar(const QStringList &files)
{
    // Off unless asked for: numbers of UPC come as EAN-13 then.
    const QStringList options{QStringLiteral("--nodbus"),      QStringLiteral("--quiet"),
                              QStringLiteral("--xml"),         QStringLiteral("-Supca.enable"),
                              QStringLiteral("-Supce.enable"), QStringLiteral("-Sean2.enable"),
                              QStringLiteral("-Sean5.enable")};
    const Output output = outputOf(QStringLiteral("zbarimg"), options + files);
    Answer answer{output.error, {}};
    QXmlStreamReader xml(output.text);
    QString file;
    Reading reading;
    while (answer.error.isEmpty() && !xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("source")) {
            file = xml.attributes().value(QLatin1String("href")).toString();
        } else if (xml.name() == QLatin1String("symbol")) {
            reading.format = xml.attributes().value(QLatin1String("type")).toString();
        } else if (xml.name() == QLatin1String("data")) {
            const bool isText = !xml.attributes().hasAttribute(QLatin1String("format"));
            reading.payload = xml.readElementText().toUtf8();
            if (!isText) {
                const Output bytes = bytesByZbar(file);
                answer.error = bytes.error;
                reading.payload = bytes.text;
            }
            answer.readings[file].append(reading);
        }
    }
    if (answer.error.isEmpty() && xml.hasError())
        answer.error = QStringLiteral("zbarimg: %1").arg(xml.errorString());
    return answer;
}

Answer readByZxing(const QStringList &options, const QStringList &files)
{
    const Output output = outputOf(QStringLiteral("ZXingReader"), options + files);
    Answer answer{output.error, {}};
    // A single file is not named.
    QString file = files.size() == 1 ? files.first() : QString();
    Reading reading;
    const QList<QByteArray> lines = output.text.split('\n');
    for (const QByteArray &line : lines) {
        const int colon = line.indexOf(':');
        const QByteArray key = line.left(colon);
        const QByteArray value = line.mid(colon + 1).trimmed();
        if (key == "File")
            file = QString::fromLocal8Bit(value);
        else if (key == "Bytes")
            reading = {{}, QByteArray::fromHex(value), {}};
        else if (key == "Format")
            reading.format = QString::fromLatin1(value);
        else if (key == "EC Level" && reading.format == QLatin1String("QRCode"))
            reading.level = QString::fromLatin1(value);
        else if (line.isEmpty() && !reading.format.isEmpty())
            answer.readings[file].append(std::exchange(reading, {}));
    }
    if (!reading.format.isEmpty())
        answer.readings[file].append(reading);
    return answer;
}

Answer readByDmtx(const QStringList &files)
{
    Answer answer;
    for (const QString &file : files) {
        const Output output = outputOf(QStringLiteral("dmtxread"),
                                       {QStringLiteral("--stop-after=1"), QStringLiteral("--milliseconds=2000"), file});
        if (!output.error.isEmpty())
            return {output.error, {}};
        if (!output.text.isEmpty())
            answer.readings[file].append({{}, output.text, {}});
    }
    return answer;
}

} // namespace

QString nameOf(Program program)
{
    switch (program) {
    case Program::Zbar:
        return QStringLiteral("zbarimg");
    case Program::Zxing:
        return QStringLiteral("ZXingReader");
    case Program::ZxingPure:
        return QStringLiteral("ZXingReader -ispure");
    case Program::Dmtx:
        return QStringLiteral("dmtxread");
    }
    return {};
}

Answer read(Program program, const QStringList &files)
{
    if (files.isEmpty())
        return {};
    // Images at half the size, which it reads again, are what ZXingReader breaks down on.
    const QString noScale = QStringLiteral("-noscale");
    switch (program) {
    case Program::Zbar:
        return readByZbar(files);
    case Program::Zxing:
        return readByZxing({noScale}, files);
    case Program::ZxingPure:
        return readByZxing({noScale, QStringLiteral("-ispure")}, files);
    case Program::Dmtx:
        return readByDmtx(files);
    }
    return {};
}

QString inWords(const QVector<Reading> &readings)
{
    QStringList words;
    for (const Reading &reading : readings)
        words.append(
            QStringLiteral("%1 %2 \"%3\"").arg(reading.format, reading.level, QString::fromUtf8(reading.payload)));
    return words.isEmpty() ? QStringLiteral("nothing") : words.join(QStringLiteral(", "));
}

} // namespace decoders
