// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "quiettest.h"
#include "testdata.h"

#include <private/qdesigner_utils_p.h>

#include <QtWidgets/QtWidgets>

using namespace qdesigner_internal;
