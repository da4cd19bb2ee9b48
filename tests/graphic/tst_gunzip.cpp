// SPDX-License-Identifier: MIT
#include "graphic/gunzip.h"
#include "tests/graphic/imagesamples.h"

#include <QTest>

namespace {

QByteArray squares()
{
    QByteArray text;
    for (int i = 0; i < 300; ++i)
        text += QByteArray::number(i * i) + ',';
    return text;
}

// Bytes without pattern, the same in each run.
QByteArray noise(int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    quint32 state = 1;
    for (char &byte : bytes) {
        state = state * 1664525U + 1013904223U;
        byte = char(state >> 24);
    }
    return bytes;
}

} // namespace

/// Compressed files.
class TestGunzip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unpacked_data();
    void unpacked();
    void headers_data();
    void headers();
    void most();
    void onlyTheFirstFile();
    void cutOff_data();
    void cutOff();
    void flipped_data();
    void flipped();
};

void TestGunzip::unpacked_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("one byte") << QByteArray("a");
    QTest::newRow("a word") << QByteArray("tavro");
    QTest::newRow("codes of its own") << squares();
    QTest::newRow("long repetition") << QByteArray(1000000, 'a');
    QTest::newRow("repetition over the greatest distance") << noise(32768) + noise(32768);
    QTest::newRow("stored, in several blocks") << noise(200000);
    QTest::newRow("one after the other") << squares() + noise(70000) + squares().repeated(50);
}

void TestGunzip::unpacked()
{
    QFETCH(QByteArray, bytes);
    const QByteArray packed = samples::zipped(bytes);
    QVERIFY(gunzip::isCompressed(packed));
    QVERIFY(gunzip::unpacked(packed, 1 << 25) == bytes);
}

void TestGunzip::headers_data()
{
    QTest::addColumn<QByteArray>("base64");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("plain") << QByteArray("H4sIAAAAAAAAACtJLCvKBwArUpLZBQAAAA==") << QByteArray("tavro");
    QTest::newRow("further field, name, comment, checksum")
        << QByteArray("H4sIHgAAAAAAAwMAYWJjbmFtZQBjb21tZW50AHlxK0ksK8oHACtSktkFAAAA") << QByteArray("tavro");
    QTest::newRow("empty") << QByteArray("H4sIAAAAAAACAwMAAAAAAAAAAAA=") << QByteArray();
    QTest::newRow("repetition") << QByteArray(
                                       "H4sIAAAAAAACA+3BMQEAAADCoKzrX8IaHkABAAAAAAAAAAAAAAAAAAAAAAAA8GAxh73KIE4AAA==")
                                << QByteArray(20000, 'a');
    QTest::newRow("not compressed") << QByteArray("tavro").toBase64() << QByteArray();
    QTest::newRow("two bytes") << QByteArray("\x1F\x8B").toBase64() << QByteArray();
    QTest::newRow("another method") << QByteArray("\x1F\x8B\x07\0\0\0\0\0\0\3K\x04\0", 13).toBase64() << QByteArray();
}

void TestGunzip::headers()
{
    QFETCH(QByteArray, base64);
    QTEST(gunzip::unpacked(QByteArray::fromBase64(base64), 1 << 20), "bytes");
}

void TestGunzip::most()
{
    for (const QByteArray &bytes : {squares(), QByteArray(1654, 'a'), noise(1654)}) {
        const QByteArray packed = samples::zipped(bytes);
        QCOMPARE(gunzip::unpacked(packed, bytes.size()), bytes);
        QCOMPARE(gunzip::unpacked(packed, bytes.size() - 1), QByteArray());
        QCOMPARE(gunzip::unpacked(packed, 0), QByteArray());
    }
}

void TestGunzip::onlyTheFirstFile()
{
    QCOMPARE(gunzip::unpacked(samples::zipped("one") + samples::zipped("two"), 100), QByteArray("one"));
}

void TestGunzip::cutOff_data()
{
    QTest::addColumn<QByteArray>("packed");
    QTest::newRow("fixed codes") << samples::zipped("tavro");
    QTest::newRow("codes of its own") << samples::zipped(squares());
    QTest::newRow("stored") << samples::zipped(noise(300));
    QTest::newRow("all of a header") << QByteArray::fromBase64(
        "H4sIHgAAAAAAAwMAYWJjbmFtZQBjb21tZW50AHlxK0ksK8oHACtSktkFAAAA");
}

void TestGunzip::cutOff()
{
    QFETCH(QByteArray, packed);
    constexpr int lengthAtTheEnd = 4; // not needed
    for (int size = 0; size < packed.size() - lengthAtTheEnd; ++size)
        QCOMPARE(gunzip::unpacked(packed.left(size), 1 << 20), QByteArray());
}

void TestGunzip::flipped_data()
{
    cutOff_data();
}

// Damage is noticed wherever it does not leave the same bytes.
void TestGunzip::flipped()
{
    QFETCH(QByteArray, packed);
    const QByteArray bytes = gunzip::unpacked(packed, 1 << 20);
    QVERIFY(!bytes.isEmpty());
    for (int bit = 0; bit < packed.size() * 8; ++bit) {
        QByteArray damaged = packed;
        damaged[bit / 8] = char(damaged.at(bit / 8) ^ (1 << (bit % 8)));
        const QByteArray found = gunzip::unpacked(damaged, 1 << 20);
        QVERIFY(found.isEmpty() || found == bytes);
    }
}

QTEST_APPLESS_MAIN(TestGunzip)
#include "tst_gunzip.moc"
