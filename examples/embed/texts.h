// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QString>

/// What the application shows for a text of the plugin's property pane. Texts that it does not know stay as
/// they are.
QString translatedText(const char *text);
