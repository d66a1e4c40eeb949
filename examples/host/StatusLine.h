#pragma once

#include <QString>
#include <QWidget>

namespace Norvane { namespace Host {

/// One line under a picture: its name and size, the pixel under the mouse, the zoom. In a narrow panel the
/// name is shortened first: the tab has it too.
class StatusLine : public QWidget
{
    Q_OBJECT
public:
    explicit StatusLine(QWidget* parent = nullptr);

    void setName(const QString& name);
    void setPixel(const QString& pixel);
    void setZoom(const QString& zoom);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void textHasChanged();

    QString m_name;
    QString m_pixel;
    QString m_zoom;
    int m_pixelWidth = 0;
};

}} // namespace Norvane::Host
