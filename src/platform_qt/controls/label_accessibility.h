// How assistive tools read the labels: a value together with its name, and not its caption once
// more.
#pragma once

#include <QAccessibleInterface>

namespace verlume::qt {

// For QAccessible::installFactory; makes the interfaces of every ElidedLabel. A label with an
// accessible name is read as "name: text", or as the name alone while it is empty. A label with a
// buddy is the caption of that value; it is invisible to assistive tools, because the value's name
// says the same in full.
QAccessibleInterface* NewLabelInterface(const QString& className, QObject* object);

}  // namespace verlume::qt
