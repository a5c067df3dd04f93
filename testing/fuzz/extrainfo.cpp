// SPDX-License-Identifier: BSD-3-Clause
// Reads a <widget> element of any form into a control and writes it again, as opening and saving a form do.

#include <sorrel/SrComboBox.h>
#include <sorrel/SrDrawbackBoxGroup.h>
#include <sorrel/SrFormBuilder.h>
#include <sorrel/SrLineEditEx.h>
#include <sorrel/SrMatrixButtons.h>
#include <sorrel/SrMatrixPopButtons.h>
#include <sorrel/SrOptionButtons.h>
#include <sorrel/SrOptionCheckBox.h>
#include <sorrel/SrOptionComboBox.h>
#include <sorrel/SrOptionRadios.h>

#include <private/ui4_p.h>

#include <QtCore/QXmlStreamReader>
#include <QtWidgets/QApplication>

#include <iterator>
#include <memory>

namespace {

template <class Control>
QWidget *make()
{
    return new Control;
}

constexpr QWidget *(*makers[])() = {make<Vexa::ComboBox>, make<Vexa::CheckableTextComboBox>,
    make<Vexa::OptionButtons>, make<Vexa::OptionCheckBox>, make<Vexa::OptionComboBox>,
    make<Vexa::OptionRadios>, make<Vexa::MatrixPushButtons>, make<Vexa::MatrixPopButtons>,
    make<Vexa::DrawbackBoxGroup>, make<QWidget>};

void ignore(QtMsgType, const QMessageLogContext &, const QString &) { }

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(ignore); // of files that are no icons
    static QApplication application(*argc, *argv);
    return 0;
}

/// The first byte chooses the control, the rest is the text of the element.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    if (size < 2)
        return 0;
    QXmlStreamReader reader(QByteArray::fromRawData(reinterpret_cast<const char *>(data) + 1, int(size) - 1));
    if (!reader.readNextStartElement())
        return 0;
    DomWidget element;
    element.read(reader);
    const std::unique_ptr<QWidget> control(makers[data[0] % std::size(makers)]());
    Vexa::FormBuilder::loadExtraInfo(&element, control.get(), nullptr);
    DomWidget saved;
    Vexa::FormBuilder::saveExtraInfo(&saved, control.get(), nullptr);
    return 0;
}
