#pragma once

#include "Waveform.h"

#include <QImage>
#include <QList>
#include <QWidget>

namespace Norvane { namespace Host {

/// A measuring instrument for a picture: a black field with lines at quarters of the levels and their
/// percents beside it.
class ScopeView : public QWidget
{
    Q_OBJECT
public:
    explicit ScopeView(QWidget* parent);

    /// \a picture is null, or in QImage::Format_RGB32.
    void setPicture(const QImage& picture);
    /// What is measured, each by a trace of its own; the luma at first.
    void setComponents(const QList<ScopeComponent>& components);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    /// Whether levels go upwards; otherwise to the right.
    virtual bool levelsGoUp() const = 0;
    /// Paints the trace of \a component over what is there, so that the lights add up. There is a picture.
    virtual void paintTrace(QPainter& painter, const QRect& field, ScopeComponent component) const = 0;

    const QImage& picture() const;
    void paintEvent(QPaintEvent* event) override;

private:
    QRect field() const;
    void paintScale(QPainter& painter, const QRect& field) const;

    QImage m_picture;
    QList<ScopeComponent> m_components;
};

/// Columns as in the picture, levels upwards.
class WaveformView : public ScopeView
{
    Q_OBJECT
public:
    explicit WaveformView(QWidget* parent);

protected:
    bool levelsGoUp() const override;
    void paintTrace(QPainter& painter, const QRect& field, ScopeComponent component) const override;
};

/// How many pixels have which level; levels to the right.
class HistogramView : public ScopeView
{
    Q_OBJECT
public:
    explicit HistogramView(QWidget* parent);

protected:
    bool levelsGoUp() const override;
    void paintTrace(QPainter& painter, const QRect& field, ScopeComponent component) const override;
};

}} // namespace Norvane::Host
