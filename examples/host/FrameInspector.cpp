#include "FrameInspector.h"

#include "FactsTable.h"
#include "VideoFrames.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace Norvane { namespace Host {

using Colour::YCbCrMatrix;

FrameInspector::FrameInspector(QWidget* parent)
    : QWidget(parent)
    , m_facts(new FactsTable(this))
    , m_matrix(new QComboBox(this))
{
    for (int i = Colour::kRec709; i <= Colour::kMoskLegacyYUVS; ++i)
        m_matrix->addItem(QLatin1String(Colour::matrixName(YCbCrMatrix(i))));
    // A long name may not keep the panel from being narrow.
    m_matrix->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_matrix->setWhatsThis(
        tr("The matrix that the colours of the frame are made with. It is not written in the file: the right "
           "one is the one that the frame was encoded with."));
    QLabel* const label = new QLabel(tr("&Matrix"), this);
    label->setBuddy(m_matrix);

    QHBoxLayout* const line = new QHBoxLayout;
    line->addWidget(label);
    line->addWidget(m_matrix, 1);
    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_facts);
    layout->addLayout(line);
    connect(m_matrix, SIGNAL(activated(int)), this, SLOT(chooseMatrix(int)));
}

void FrameInspector::setPicture(const QString& path)
{
    if (path == m_path)
        return;
    m_path = path;
    const FrameAddress address = FrameAddress::fromString(path);
    FrameFormat format;
    QString problem;
    m_hasFrame = !address.path.isNull() && FrameFormat::parse(address.format, &format, &problem);
    m_facts->setFacts(m_hasFrame ? VideoFrames::rangeFacts(address) : Facts());
    m_matrix->setCurrentIndex(format.matrix);
}

bool FrameInspector::hasFrame() const
{
    return m_hasFrame;
}

bool FrameInspector::isShownWhenDisclosed() const
{
    return isDisclosed() && m_hasFrame;
}

void FrameInspector::chooseMatrix(int index)
{
    FrameAddress address = FrameAddress::fromString(m_path);
    FrameFormat format;
    QString problem;
    if (!FrameFormat::parse(address.format, &format, &problem) || format.matrix == index)
        return;
    format.matrix = YCbCrMatrix(index);
    address.format = format.toString();
    Q_EMIT frameChanged(m_path, address.toString());
}

}} // namespace Norvane::Host
