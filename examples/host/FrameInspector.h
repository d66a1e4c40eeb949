#pragma once

#include <ui/widgets/DisclosableWidget.h>

#include <QString>
#include <QWidget>

class QComboBox;

namespace Norvane { namespace Host {

class FactsTable;

/// The part of an inspector for frames of video: the range of their samples, and a choice of the matrix that
/// they are decoded with. In an open group it is to be seen only if there is a frame.
class FrameInspector : public QWidget, public UI::DisclosableWidget
{
    Q_OBJECT
public:
    explicit FrameInspector(QWidget* parent);

    /// \a path may be that of a common picture, or empty.
    void setPicture(const QString& path);
    bool hasFrame() const;

    bool isShownWhenDisclosed() const override;

Q_SIGNALS:
    /// The user wants the frame \a path shown as \a other, which has another matrix.
    void frameChanged(const QString& path, const QString& other);

private Q_SLOTS:
    void chooseMatrix(int index);

private:
    QString m_path;
    bool m_hasFrame = false;
    FactsTable* m_facts;
    QComboBox* m_matrix;
};

}} // namespace Norvane::Host
