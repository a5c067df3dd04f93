// SPDX-License-Identifier: BSD-3-Clause
// Takes texts through contents, an editor's list and a control and ends where one is lost on the way.

#include "editing/controlcontents.h"

#include <sorrel/SrOptionButtons.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QListWidget>

#include <cstdlib>

namespace {

constexpr int fields[] = {ItemRole::Text, ItemRole::ToolTip, ItemRole::Data};
constexpr int mostEntries = 200;

void ignore(QtMsgType, const QMessageLogContext &, const QString &) { }

void require(bool holds)
{
    if (!holds)
        std::abort();
}

/// Entries of three texts each, from the parts between zeros. Entries without any text have no row in an
/// editor, so there are none.
ListContents contentsFrom(const QByteArray &bytes)
{
    ListContents contents;
    const QList<QByteArray> parts = bytes.split('\0');
    for (int i = 0; i < parts.size() && contents.size() < mostEntries; i += 3) {
        ItemData entry;
        for (int field = 0; field < 3; ++field)
            entry.setText(fields[field], QString::fromUtf8(parts.value(i + field)));
        if (!entry.isEmpty())
            contents += entry;
    }
    return contents;
}

void requireSameTexts(const ListContents &left, const ListContents &right)
{
    require(left.size() == right.size());
    for (int i = 0; i < left.size(); ++i) {
        for (const int field : fields)
            require(left.at(i).text(field) == right.at(i).text(field));
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(ignore);
    static QApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const ListContents contents
        = contentsFrom(QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size)));

    QListWidget list;
    applyToListWidget(contents, &list, nullptr, true);
    requireSameTexts(fromListWidget(&list, true), contents);

    Vexa::OptionButtons buttons;
    applyToOptionButtons(contents, &buttons);
    require(fromOptionButtons(&buttons) == contents);
    return 0;
}
