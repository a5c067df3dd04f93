// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class QAbstractItemView;

/// Models for the views of the forms, which have no contents of their own. The view becomes the parent.
void showLayers(QAbstractItemView *view);
void showCategories(QAbstractItemView *view);
