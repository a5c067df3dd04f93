// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>

class QWidget;

/// What the property editor shows: the texts of its values by the names of the properties, those below other
/// properties left out.
QMap<QString, QString> propertyEditorRows(const QWidget *propertyEditor);
