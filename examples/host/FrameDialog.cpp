#include "FrameDialog.h"

#include "FrameSuggestion.h"
#include "VideoFrames.h"

#include <ui/widgets/FilenameField.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace Norvane { namespace Host {

using Colour::YCbCrMatrix;

namespace {

const int kShownCharacters = 64;
const QSize kFirstSize(1920, 1080);

} // namespace

FrameDialog::FrameDialog(const QString& folder, QWidget* parent)
    : QDialog(parent)
    , m_folder(folder)
    , m_file(new UI::FilenameField(this, QFileDialog::ExistingFile))
    , m_layout(new QComboBox(this))
    , m_width(createSide(tr("Width")))
    , m_height(createSide(tr("Height")))
    , m_matrix(new QComboBox(this))
    , m_problem(new QLabel(this))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Open | QDialogButtonBox::Cancel, Qt::Horizontal, this))
{
    setWindowTitle(tr("Open Frame"));
    m_file->setPrompt(tr("A file with the samples of one frame"));
    for (const FrameLayout& layout : frameLayouts()) {
        if (layout.hasDecoder())
            m_layout->addItem(layout.name());
    }
    m_matrix->addItem(QString());
    for (int i = Colour::kRec709; i <= Colour::kMoskLegacyYUVS; ++i)
        m_matrix->addItem(QLatin1String(Colour::matrixName(YCbCrMatrix(i))));
    m_problem->setWordWrap(true);
    m_problem->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // Two lines, so that nothing moves when there is something to tell.
    m_problem->setMinimumHeight(2 * fontMetrics().lineSpacing());

    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->addLayout(createForm());
    layout->addWidget(m_problem);
    layout->addWidget(m_buttons);
    connect(m_file, SIGNAL(fileDialogShown(QFileDialog*)), this, SLOT(prepareDialog(QFileDialog*)));
    connect(m_file, SIGNAL(filenameChanged()), this, SLOT(proposeFormat()));
    connect(m_layout, SIGNAL(activated(int)), this, SLOT(proposeSize()));
    connect(m_width, SIGNAL(valueChanged(int)), this, SLOT(check()));
    connect(m_height, SIGNAL(valueChanged(int)), this, SLOT(check()));
    connect(m_buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(m_buttons, SIGNAL(rejected()), this, SLOT(reject()));
    resize(fontMetrics().averageCharWidth() * kShownCharacters, sizeHint().height());
    check();
}

QSpinBox* FrameDialog::createSide(const QString& name)
{
    QSpinBox* const side = new QSpinBox(this);
    side->setRange(1, FrameFormat::kLongestSide);
    side->setAccessibleName(name);
    side->setToolTip(name);
    return side;
}

QFormLayout* FrameDialog::createForm()
{
    setSize(kFirstSize);
    QHBoxLayout* const size = new QHBoxLayout;
    size->addWidget(m_width);
    size->addWidget(new QLabel(QString(QChar(0xd7)), this));
    size->addWidget(m_height);
    size->addStretch(1);
    QFormLayout* const form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("&File"), m_file);
    form->addRow(tr("&Layout"), m_layout);
    form->addRow(tr("&Size"), size);
    form->addRow(tr("&Matrix"), m_matrix);
    static_cast<QLabel*>(form->labelForField(size))->setBuddy(m_width);
    return form;
}

void FrameDialog::prepareDialog(QFileDialog* dialog)
{
    dialog->setWindowTitle(windowTitle());
    if (m_file->filename().isEmpty())
        dialog->setDirectory(m_folder);
}

void FrameDialog::proposeFormat()
{
    const FrameFormat suggested = suggestedFormat(m_file->filename());
    if (suggested.layout)
        m_layout->setCurrentIndex(m_layout->findText(suggested.layout->name()));
    if (suggested.width > 0)
        setSize(QSize(suggested.width, suggested.height));
    check();
}

void FrameDialog::proposeSize()
{
    const qint64 fileSize = QFileInfo(m_file->filename()).size();
    FrameFormat suggested = format();
    if (suggested.rowDistance(fileSize) == 0 && suggestSize(&suggested, fileSize))
        setSize(QSize(suggested.width, suggested.height));
    check();
}

void FrameDialog::setSize(const QSize& size)
{
    m_width->setValue(size.width());
    m_height->setValue(size.height());
}

FrameFormat FrameDialog::format() const
{
    FrameFormat format;
    for (const FrameLayout& layout : frameLayouts()) {
        if (layout.name() == m_layout->currentText())
            format.layout = &layout;
    }
    format.width = m_width->value();
    format.height = m_height->value();
    const int matrix = m_matrix->currentIndex();
    format.matrix = matrix > 0 ? YCbCrMatrix(matrix - 1) : format.layout->usualMatrix(format.height);
    return format;
}

FrameAddress FrameDialog::address() const
{
    FrameAddress address;
    address.format = format().toString();
    address.path = m_file->filename();
    return address;
}

void FrameDialog::check()
{
    const FrameFormat shown = format();
    const YCbCrMatrix usual = shown.layout->usualMatrix(shown.height);
    m_matrix->setItemText(0, tr("The usual one: %1").arg(QLatin1String(Colour::matrixName(usual))));
    QString problem;
    if (m_file->filename().isEmpty())
        problem = tr("Choose a file.");
    else
        VideoFrames::canRead(address(), &problem);
    m_problem->setText(problem);
    QPushButton* const open = m_buttons->button(QDialogButtonBox::Open);
    open->setEnabled(problem.isEmpty());
    open->setToolTip(problem);
    open->setAccessibleDescription(problem);
}

}} // namespace Norvane::Host
