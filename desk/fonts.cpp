// SPDX-License-Identifier: MIT
#include "desk/fonts.h"

#include "core/tavrotext.h"
#include "desk/form.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QVector>

namespace fonts {

namespace {

struct Substitution
{
    QString family;
    QStringList installed; ///< best first
};

const QVector<Substitution> &substitutions()
{
    static const QStringList song{QStringLiteral("Noto Serif CJK SC"), QStringLiteral("AR PL UMing CN"),
                                  QStringLiteral("AR PL SungtiL GB")};
    static const QStringList hei{QStringLiteral("Noto Sans CJK SC"), QStringLiteral("WenQuanYi Zen Hei"),
                                 QStringLiteral("WenQuanYi Micro Hei")};
    static const QStringList kai{QStringLiteral("AR PL UKai CN"), QStringLiteral("AR PL KaitiM GB"),
                                 QStringLiteral("Noto Serif CJK SC")};
    static const QVector<Substitution> all{
        {QStringLiteral("宋体"), song}, {QStringLiteral("黑体"), hei}, {QStringLiteral("楷体"), kai}};
    return all;
}

} // namespace

void substituteMissing()
{
    const QStringList families = QFontDatabase().families();
    for (const Substitution &substitution : substitutions()) {
        if (families.contains(substitution.family))
            continue;
        for (const QString &installed : substitution.installed) {
            if (families.contains(installed)) {
                QFont::insertSubstitution(substitution.family, installed);
                break;
            }
        }
    }
}

QStringList facesUsedBy(const Form &form)
{
    QStringList families;
    for (const Form::Entry &entry : form.entries) {
        const auto *text = qobject_cast<TavroText *>(entry.object.data());
        if (text && !families.contains(text->fontFamily()))
            families.append(text->fontFamily());
    }
    QStringList lines;
    for (const QString &family : qAsConst(families))
        lines.append(QStringLiteral("font \"%1\": using \"%2\"").arg(family, QFontInfo(QFont(family)).family()));
    return lines;
}

} // namespace fonts
