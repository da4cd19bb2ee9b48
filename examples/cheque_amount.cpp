// SPDX-License-Identifier: MIT
#include <entry/tavroedit.h>

#include <QApplication>
#include <QGraphicsScene>
#include <QPainter>
#include <QPdfWriter>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QFont::insertSubstitution(QStringLiteral("宋体"), QStringLiteral("Noto Serif CJK SC"));
    QGraphicsScene scene(0, 0, 225 * 8, 80 * 8); // a cheque of 225 mm × 80 mm at 8 px/mm

    auto *amount = new TavroEdit;
    scene.addItem(amount); // which owns it from here on
    amount->setPhyRect({35, 22, 120, 9});
    amount->setPhyBoundingRectWidth(120);
    amount->setBoundingRect({35 * 8, 22 * 8, 120 * 8, 9 * 8});
    amount->setFontPtSz(14); // after the geometry, which is its scale
    amount->setFormatType(Format_RmbCapital);
    amount->setContentData(QStringLiteral("10500")); // shown as 壹万零伍佰元整
    amount->adjustTextStyle();                       // now, since no event loop will
    amount->setPaintMode(Paint_Print);

    QPdfWriter paper(QStringLiteral("cheque_amount.pdf"));
    paper.setPageSize(QPageSize(QSizeF(225, 80), QPageSize::Millimeter));
    paper.setPageMargins({0, 0, 0, 0});
    QPainter painter(&paper);
    scene.render(&painter);
}
