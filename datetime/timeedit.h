// SPDX-License-Identifier: MIT
#pragma once

#include "datetime/datetimeeditprototype.h"

/// Sections of a time: hour, minute and second without leading zeros. Starts with the current time.
class TAVRO_EXPORT TimeEdit : public DateTimeEditPrototype
{
    Q_OBJECT

public:
    explicit TimeEdit(QWidget *parent = nullptr);
    ~TimeEdit() override;

    /// An invalid time shows empty sections.
    void setDateTime(const QDateTime &dateTime) override;
    /// Builds the sections anew.
    void setSeperatorType(const Datetime_Seperator_Type &type) override;
    /// Builds the sections anew and keeps their widths.
    void setIsShowSeperator(bool show) override;

    TimeOrderType orderType() const;
    /// Builds the sections anew. Numbers beyond the named orders leave none.
    void setOrderType(const TimeOrderType &order);

private:
    void rebuild();

    std::array<QString, 3> m_texts;
    TimeOrderType m_orderType = Order_HMS;
    std::array<int, 3> m_places = {-1, -1, -1};
};
