// SPDX-License-Identifier: MIT
#include "entry/userpattern.h"

namespace {

// Anchors around a valid pattern. One that ends inside a quotation (\Q) or a comment ((?x) #) would take the closing
// anchor for a part of it, so these are closed first, each in its own way, since neither closes the other.
QRegularExpression wholeTextExpression(const QString &pattern)
{
    QRegularExpression expression(QRegularExpression::anchoredPattern(pattern));
    if (!expression.isValid())
        expression.setPattern(QRegularExpression::anchoredPattern(pattern + QLatin1String("\\E")));
    if (!expression.isValid())
        expression.setPattern(QRegularExpression::anchoredPattern(pattern + QLatin1Char('\n')));
    return expression;
}

} // namespace

UserPattern::UserPattern(const QString &pattern)
    : m_pattern(pattern)
{
    if (pattern.isEmpty())
        return;
    // the raw pattern decides: anchors would turn an invalid "a)(b" into something valid
    m_isValid = QRegularExpression(pattern).isValid();
    if (!m_isValid)
        return;
    m_wholeText = wholeTextExpression(pattern);
    m_isValid = m_wholeText.isValid();
}

bool UserPattern::matches(const QString &text) const
{
    if (m_pattern.isEmpty())
        return true;
    return m_isValid && m_wholeText.match(text).hasMatch();
}
