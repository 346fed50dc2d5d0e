#pragma once

#include "xml/XmlNode.h"

#include <QString>

namespace vantrell
{

/// Changes to single elements, attached or not. Text is set as typed: nothing in it is read as markup;
/// characters that XML forbids are dropped and logged. A null element is left alone.
namespace XmlEdit
{

/// Replaces the element's content by the text. Child elements are kept outside the tree.
void setText(XmlNode element, const QString &text);

/// Appends a new element of that name with that text as the parent's last child; null without a parent or
/// when XML does not allow the name.
XmlNode appendElement(XmlNode parent, const QString &name, const QString &text);

/// Replaces all of the element's attributes by this one.
void setOnlyAttribute(XmlNode element, const QString &name, const QString &value);

} // namespace XmlEdit
} // namespace vantrell
