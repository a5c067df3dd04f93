// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QtGlobal>

#ifdef SORREL_BUILD
#define SORREL_EXPORT Q_DECL_EXPORT
#else
#define SORREL_EXPORT Q_DECL_IMPORT
#endif
