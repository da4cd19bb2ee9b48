// SPDX-License-Identifier: MIT
#pragma once

#include "core/tavrotypes.h"

#include <QButtonGroup>
#include <QGraphicsScene>
#include <QJsonObject>
#include <QMarginsF>
#include <QPointer>
#include <QRectF>
#include <QSizeF>
#include <QStringList>
#include <map>
#include <vector>

class TavroPrototype;

/// A form in memory: its page, its objects on a scene, and everything of its file that this version does not know, kept
/// for the next rewrite. Lengths in millimetres, the scene in pixels; the scale leads from one to the other.
class Form
{
public:
    /// One entry of the file: an object with what is unknown about it, or an entry of unknown kind as it stands.
    struct Entry
    {
        QPointer<TavroPrototype> object; ///< owned by the scene; null for an unknown kind
        QJsonObject unknown;
    };

    Form();

    /// Size of the paper and the margins inside it, mm.
    QSizeF pageSize;
    QMarginsF pageMargins;
    /// Pixels per millimetre.
    double scale = 8;
    /// Unknown settings of the file and of the page.
    QJsonObject unknown;
    QJsonObject unknownPage;
    /// In the order of the file, which is the order of painting among equal z values.
    std::vector<Entry> entries;

    QGraphicsScene &scene() { return m_scene; }
    /// The page in scene pixels.
    QRectF pageRect() const;
    /// New object as forms start with: without a value. The caller owns it.
    static TavroPrototype *newObject(ObjType kind);
    /// Takes an object of the library onto the scene; both rectangles are set from millimetres.
    void addObject(TavroPrototype *object, const QRectF &millimetres, const QJsonObject &unknownSettings = {});
    /// The object with the identifier, null without one. The empty text identifies nothing.
    TavroPrototype *objectWithId(const QString &id) const;
    /// Puts the object at its place in millimetres and in pixels, with the line width or font size of its scale.
    void setGeometry(TavroPrototype *object, const QRectF &millimetres) const;
    /// Makes one choice of the check boxes that have a group in common. The first that is ticked stays so.
    void groupCheckBoxes();
    /// Brings the fonts up to date with text and geometry, which objects else do when the event loop turns.
    void fitTexts() const;
    /// Names what a reader of this version does not know, with its place: objects[3]: kind "hologram".
    QStringList unknownNames() const;

private:
    QGraphicsScene m_scene;
    std::map<QString, QButtonGroup> m_groups; ///< of check boxes, by name
};
