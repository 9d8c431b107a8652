#include "ui/dialogs/dlgPrint.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QPainter>
#include <QPrintDialog>
#include <QScopeGuard>
#include <QVBoxLayout>

#include "base/Fault.h"
#include "ui/controls/Controls.h"
#include "ui/dialogs/Messages.h"
#include "ui/plan/PictureBox.h"

namespace quillbrand {

namespace {

constexpr QSize previewRoom(264, 340);
constexpr int choicesWidth = 264;
constexpr int nameWidth = 136;

QCheckBox* MakeChoice(int index, const char* caption, bool ticked) {
    auto* check = MakeCheck("", caption);
    check->setObjectName(QStringLiteral("Check1%1").arg(index));
    check->setProperty("Index", index);
    check->setChecked(ticked);
    return check;
}

}  // namespace

dlgPrint::dlgPrint(Workplace& workplace, QImage picture)
    : QDialog(workplace.Window()),
      workplace_(workplace),
      picture_(std::move(picture)),
      printer_(QPrinter::HighResolution) {
    setObjectName(QStringLiteral("dlgPrint"));
    setWindowTitle(QStringLiteral("Print"));
    auto* right = new QVBoxLayout;
    right->setSpacing(gap);
    right->addWidget(BuildChoices());
    right->addStretch();
    right->addWidget(BuildButtons());
    auto* layout = new QHBoxLayout(this);
    layout->setSpacing(2 * gap);
    layout->addWidget(BuildPreview());
    layout->addLayout(right);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    OrderTabs({Check1Terrain_, Check1Settings_, cmdPrinter_, OKButton_, CancelButton_});
    OKButton_->setFocus();
    ShowPrinterName();
    ShowPage();
}

QWidget* dlgPrint::BuildPreview() {
    auto* holder = new QWidget;
    holder->setFixedSize(previewRoom);
    PicPrint_ = Named(new PictureBox, "PicPrint");
    auto* layout = new QVBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(PicPrint_, 0, Qt::AlignCenter);
    return holder;
}

QWidget* dlgPrint::BuildChoices() {
    auto* part = new QWidget;
    part->setFixedWidth(choicesWidth);
    auto* layout = new QVBoxLayout(part);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap);
    auto* Label1 = Named(new QLabel(QStringLiteral("Print Terrain and Setting ")), "Label1");
    QFont bold = Label1->font();
    bold.setWeight(QFont::DemiBold);
    Label1->setFont(bold);
    layout->addWidget(Label1);
    Check1Terrain_ = MakeChoice(0, "Terrain", true);
    Check1Settings_ = MakeChoice(1, "Terrain Settings", true);
    auto* Check1Fit = MakeChoice(3, "fit to Papersize", false);
    // The page always fits.
    Check1Fit->setEnabled(false);
    for (QCheckBox* choice : {Check1Terrain_, Check1Settings_, Check1Fit})
        layout->addWidget(choice, 0, Qt::AlignLeft);
    for (QCheckBox* choice : {Check1Terrain_, Check1Settings_})
        connect(choice, &QCheckBox::toggled, this, &dlgPrint::ShowPage);

    auto* frame = MakeFrame("Printer");
    auto* line = new QHBoxLayout(frame);
    Label2_ = Named(new QLabel(QStringLiteral("kein")), "Label2");
    cmdPrinter_ = MakeButton("cmdPrinter", "Printer...");
    line->addWidget(Label2_, 1);
    line->addWidget(cmdPrinter_);
    layout->addSpacing(gap);
    layout->addWidget(frame);
    connect(cmdPrinter_, &QPushButton::clicked, this, &dlgPrint::cmdPrinter_Click);
    return part;
}

QWidget* dlgPrint::BuildButtons() {
    OKButton_ = MakeButton("OKButton", "&Print");
    CancelButton_ = MakeButton("CancelButton", "&Cancel");
    OKButton_->setDefault(true);
    auto* part = new QWidget;
    auto* layout = new QHBoxLayout(part);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap);
    layout->addStretch();
    layout->addWidget(OKButton_);
    layout->addWidget(CancelButton_);
    connect(OKButton_, &QPushButton::clicked, this, &dlgPrint::OKButton_Click);
    connect(CancelButton_, &QPushButton::clicked, this, &QDialog::reject);
    return part;
}

PrintSettings dlgPrint::Settings() const {
    return {.terrain = Check1Terrain_->isChecked(),
            .settings = Check1Settings_->isChecked(),
            .copies = printer_.copyCount()};
}

void dlgPrint::ShowPage() {
    const double scale = devicePixelRatioF();
    QImage page = PagePicture(workplace_.TheSession().document, picture_, Settings(),
                              printer_.pageLayout(), (QSizeF(previewRoom) * scale).toSize());
    PicPrint_->setFixedSize((QSizeF(page.size()) / scale).toSize());
    QPainter edge(&page);
    edge.setPen(QPen(QColor(0x90, 0x90, 0x90), 2 * scale));
    edge.drawRect(page.rect());
    edge.end();
    PicPrint_->EditRaster().Image() = page;
    PicPrint_->RasterChanged();
}

void dlgPrint::ShowPrinterName() {
    QString name = printer_.printerName();
    if (printer_.outputFormat() == QPrinter::PdfFormat)
        name = QFileInfo(printer_.outputFileName()).fileName();
    if (name.isEmpty())
        name = QStringLiteral("kein");
    Label2_->setText(Label2_->fontMetrics().elidedText(name, Qt::ElideMiddle, nameWidth));
    Label2_->setToolTip(name);
}

void dlgPrint::cmdPrinter_Click() {
    QPrintDialog dialog(&printer_, this);
    dialog.setWindowTitle(QStringLiteral("Setting Printer"));
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    dialog.setOption(QAbstractPrintDialog::PrintCollateCopies, false);
    // Nothing is printed yet.
    if (auto* buttons = dialog.findChild<QDialogButtonBox*>())
        if (auto* accept = buttons->button(QDialogButtonBox::Ok))
            accept->setText(QStringLiteral("&OK"));
    if (dialog.exec() != QDialog::Accepted)
        return;
    ShowPrinterName();
    ShowPage();
}

void dlgPrint::Print() {
    const Session& session = workplace_.TheSession();
    const PrintSettings settings = Settings();
    if (printer_.outputFormat() == QPrinter::PdfFormat) {
        if (printer_.outputFileName().isEmpty())
            throw Fault(
                "there is no printer. \"Printer...\" offers to print to a PDF file instead");
        ReplaceFile(printer_.outputFileName().toStdString(),
                    PrintedPdf(session.document, picture_, settings, printer_.pageLayout()));
        return;
    }
    // Each copy is a job of its own, which the system must not multiply again.
    printer_.setCopyCount(1);
    const auto restore = qScopeGuard([&] { printer_.setCopyCount(settings.copies); });
    printer_.setDocName(QStringLiteral("Terrain and Settings"));
    PrintPage(printer_, CopyAs::Job, session.document, picture_, settings);
}

void dlgPrint::OKButton_Click() {
    if (RunPart(this, workplace_.TheHost(), windowTitle(), [this] { Print(); }))
        accept();
}

}  // namespace quillbrand
