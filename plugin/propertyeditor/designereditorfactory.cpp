// SPDX-License-Identifier: BSD-3-Clause
#include "designereditorfactory.h"
#include "designerpropertymanager.h"
#include "pixmapeditor.h"
#include "propertyrows.h"
#include "resetdecorator.h"
#include "texteditor.h"

#include <QtDesigner/QDesignerFormEditorInterface>

namespace qdesigner_internal {

namespace {

ValueEditor *createPlainEditor(const PropertyRow *row, QWidget *parent)
{
    switch (row->kind()) {
    case PropertyRow::Text:
        return new TextEditor(parent);
    case PropertyRow::Flag:
        return new FlagEditor(parent);
    case PropertyRow::Choice:
        return new ChoiceEditor(static_cast<const ChoiceRow *>(row), parent);
    case PropertyRow::Number:
        return new NumberEditor(static_cast<const NumberRow *>(row), parent);
    case PropertyRow::Theme:
        return new ThemeEditor(parent);
    case PropertyRow::Pixmap:
        return new PixmapEditor(false, row->manager(), parent);
    case PropertyRow::Icon:
        return new PixmapEditor(true, row->manager(), parent);
    case PropertyRow::String:
        return new TextEditor(static_cast<const StringRow *>(row), row->manager()->core(), parent);
    case PropertyRow::SizePolicy:
        break;
    }
    return nullptr;
}

} // namespace

DesignerEditorFactory::DesignerEditorFactory(QObject *parent)
    : QObject(parent)
{
}

ValueEditor *DesignerEditorFactory::createEditor(PropertyRow *row, QWidget *parent)
{
    const bool plain = !row->isResettable();
    ValueEditor *editor
        = createPlainEditor(row, plain ? parent : nullptr); // the decorator gives it its parent
    if (!editor)
        return nullptr;
    for (QWidget *named = editor; named; named = named->focusProxy())
        named->setAccessibleName(row->name());
    if (plain)
        return editor;
    auto *decorated = new ResetDecorator(editor, row, parent);
    connect(decorated, SIGNAL(resetProperty(PropertyRow *)), this, SIGNAL(resetProperty(PropertyRow *)));
    return decorated;
}

} // namespace qdesigner_internal
