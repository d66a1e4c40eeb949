#include <benchmarks/ControlCase.h>

#include <colour/Color4.h>
#include <ui/colour/ColorControl.h>
#include <ui/colour/ColorSlider.h>
#include <ui/colour/ColorWheel.h>

#ifdef NORVANE_BENCHMARK_COLOR_WIDGETS
#include <QtColorWidgets/color_wheel.hpp>
#endif

#include <QApplication>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QMouseEvent>

#include <cmath>

namespace Norvane { namespace Benchmarks {

namespace {

using UI::ColorControl;
using UI::ColorSlider;
using UI::ColorWheel;

template <ColorWheel::DisplayMode Mode>
QWidget* createOurs()
{
    ColorWheel* const wheel = new ColorWheel(nullptr, Mode);
    wheel->setHSV(0.6f, 0.5f, 0.8f);
    return wheel;
}

QString colourOfOurs(QWidget* widget)
{
    float hue, saturation, value;
    static_cast<ColorWheel*>(widget)->getHSV(hue, saturation, value);
    return QString::fromLatin1("%1 %2 %3").arg(hue).arg(saturation).arg(value);
}

#ifdef NORVANE_BENCHMARK_COLOR_WIDGETS
QWidget* createPeer()
{
    color_widgets::ColorWheel* const wheel = new color_widgets::ColorWheel;
    wheel->setColor(QColor::fromHsvF(0.6, 0.5, 0.8));
    // The same kind of wheel as ours: a square that stays as it is.
    wheel->setSelectorShape(color_widgets::ColorWheel::ShapeSquare);
    wheel->setRotatingSelector(false);
    return wheel;
}

QString colourOfPeer(QWidget* widget)
{
    return static_cast<color_widgets::ColorWheel*>(widget)->color().name();
}
#endif

/// A kind of wheel and where it is dragged: around the centre, at this part of half its side less some
/// pixels.
struct Wheel {
    QWidget* (*create)();
    QString (*colourOf)(QWidget* widget);
    double part;
    int lessPixels;

    QPoint place(int side, int step) const
    {
        const double distance = part * side / 2 - lessPixels;
        const double angle = 0.05 * step;
        return QPoint(side / 2 + qRound(distance * std::cos(angle)),
                      side / 2 + qRound(distance * std::sin(angle)));
    }
};

enum Place { kInDisc, kAroundSquare, kInSquare, kInRing, kOnRing, kPeerAround, kPeerInSquare };

/// By Place.
const Wheel kWheels[] = {
    {createOurs<ColorWheel::kDisc>, colourOfOurs, 0.5, 0},
    {createOurs<ColorWheel::kInnerSquare>, colourOfOurs, 0.92, 0},
    {createOurs<ColorWheel::kInnerSquare>, colourOfOurs, 0.4, 0},
    {createOurs<ColorWheel::kValueRing>, colourOfOurs, 0.5, 0},
    {createOurs<ColorWheel::kValueRing>, colourOfOurs, 1, 9},
#ifdef NORVANE_BENCHMARK_COLOR_WIDGETS
    {createPeer, colourOfPeer, 1, 10},
    {createPeer, colourOfPeer, 0.4, 0},
#endif
};

void send(QWidget* widget, QEvent::Type type, const QPoint& position)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, position, widget->mapToGlobal(position), button, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

/// Counts how often a widget is painted.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget* widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint;
        return false;
    }
    int paints = 0;
};

/// A busy desktop may take its time.
void showPainted(QWidget* window, const PaintCounter& counter)
{
    QElapsedTimer timer;
    timer.start();
    window->show();
    while (counter.paints == 0 && timer.elapsed() < 5000)
        QApplication::processEvents();
}

class WheelRepaint : public Control
{
public:
    WheelRepaint(const Wheel& wheel, int side)
        : m_widget(wheel.create())
        , m_counter(m_widget.get())
    {
        m_widget->setFixedSize(side, side);
        showPainted(m_widget.get(), m_counter);
        m_counter.paints = 0;
    }
    void step() override
    {
        ++m_steps;
        m_widget->repaint();
    }
    std::string problem() override
    {
        return m_counter.paints < m_steps ? "a step was not painted" : std::string();
    }

private:
    const std::unique_ptr<QWidget> m_widget;
    PaintCounter m_counter;
    int m_steps = 0;
};

/// The mouse has moved, and what that changed is painted.
class WheelDrag : public Control
{
public:
    WheelDrag(const Wheel& wheel, int side)
        : WheelDrag(wheel, side, wheel.create())
    {
    }
    ~WheelDrag() override { delete m_widget->window(); }

    void step() override
    {
        send(m_widget, QEvent::MouseMove, m_wheel.place(m_side, ++m_step));
        QApplication::processEvents();
    }
    std::string problem() override
    {
        if (m_counter.paints < m_step - idleSteps(m_step))
            return "steps were not painted";
        QString last = m_wheel.colourOf(m_widget);
        int changes = 0;
        const int steps = 20;
        for (int i = 0; i < steps; ++i) {
            step();
            changes += last != m_wheel.colourOf(m_widget);
            last = m_wheel.colourOf(m_widget);
        }
        return changes < steps - idleSteps(steps) ? "the drag does not change the colour" : std::string();
    }

protected:
    /// \a widget is the wheel, in a window if it is not one itself.
    WheelDrag(const Wheel& wheel, int side, QWidget* widget)
        : m_wheel(wheel)
        , m_side(side)
        , m_widget(widget)
        , m_counter(widget)
    {
        m_widget->setFixedSize(side, side);
        showPainted(m_widget->window(), m_counter);
        send(m_widget, QEvent::MouseButtonPress, m_wheel.place(m_side, 0));
        QApplication::processEvents();
        m_counter.paints = 0;
    }

private:
    /// The marker of the value ring waits at an end for a tenth of the 126 steps of a turn: so many may
    /// change nothing.
    static int idleSteps(int steps) { return 13 * (1 + steps / 126); }

    const Wheel& m_wheel;
    const int m_side;
    QWidget* const m_widget;
    PaintCounter m_counter;
    int m_step = 0;
};

/// The wheel of a control in a window with nine sliders.
QWidget* createViews(ColorControl* control, ColorSlider* hue)
{
    ColorWheel* const wheel = control->createColorWheel();
    wheel->setDisplayMode(ColorWheel::kDisc);
    wheel->setInteractionMode(ColorWheel::kAbsolute);
    ColorSlider* const lying[] = {
        control->createRedSlider(Qt::Horizontal), control->createGreenSlider(Qt::Horizontal),
        control->createBlueSlider(Qt::Horizontal), control->createAlphaSlider(Qt::Horizontal), hue};
    ColorSlider* const standing[] = {
        control->createVerticalValueSlider(), control->createVerticalIntensitySlider(),
        control->createVerticalTemperatureSlider(), control->createVerticalMagentaGreenSlider()};
    QGridLayout* const grid = new QGridLayout(new QWidget);
    grid->addWidget(wheel, 0, 0);
    for (ColorSlider* const slider : standing) {
        slider->setMinimumWidth(40);
        grid->addWidget(slider, 0, grid->columnCount());
    }
    for (ColorSlider* const slider : lying)
        grid->addWidget(slider, grid->rowCount(), 0, 1, grid->columnCount());
    return wheel;
}

/// Before WheelDrag, which uses it at once.
struct SharedColor {
    SharedColor()
        : control(nullptr)
        , hue(new ColorSlider(UI::ColorUIConstants::kHue, Qt::Horizontal))
    {
        control.setColorRange(0, 1);
        control.setColorRGBA(0.2f, 0.4f, 0.8f, 1);
        hue->setControl(&control);
    }
    ColorControl control;
    ColorSlider* const hue;
};

class AllViewsDrag : private SharedColor, public WheelDrag
{
public:
    explicit AllViewsDrag(int side)
        : WheelDrag(kWheels[kInDisc], side, createViews(&control, hue))
        , m_counter(hue)
    {
    }
    void step() override
    {
        ++m_steps;
        WheelDrag::step();
    }
    std::string problem() override
    {
        float h, s, v;
        control.getColor().getHSV(&h, &s, &v);
        if (std::abs(h - float(hue->value())) > 1e-4f)
            return "the views show different colours";
        return m_counter.paints < m_steps ? "a slider was not painted" : WheelDrag::problem();
    }

private:
    PaintCounter m_counter;
    int m_steps = 0;
};

template <int Place, int Side>
std::unique_ptr<Control> makeRepaint()
{
    return std::make_unique<WheelRepaint>(kWheels[Place], Side);
}

template <int Place, int Side>
std::unique_ptr<Control> makeDrag()
{
    return std::make_unique<WheelDrag>(kWheels[Place], Side);
}

template <int Side>
std::unique_ptr<Control> makeAllViewsDrag()
{
    return std::make_unique<AllViewsDrag>(Side);
}

/// Peer is the place in the other library's wheel that is compared.
template <int Place, int Peer, int Side>
void addDrag(std::vector<ControlCase>* cases, const std::string& task)
{
    const std::string name = task + ", " + std::to_string(Side);
    cases->push_back({name, "core", makeDrag<Place, Side>, 0});
#ifdef NORVANE_BENCHMARK_COLOR_WIDGETS
    cases->push_back({name, "color_widgets", makeDrag<Peer, Side>, 5});
#endif
}

template <int Side>
void addDrags(std::vector<ControlCase>* cases)
{
    addDrag<kInDisc, kPeerAround, Side>(cases, "drag in disc, their hue");
    addDrag<kAroundSquare, kPeerAround, Side>(cases, "drag hue around square");
    addDrag<kInSquare, kPeerInSquare, Side>(cases, "drag in square");
    addDrag<kInRing, kPeerAround, Side>(cases, "drag in ring, their hue");
    addDrag<kOnRing, kPeerAround, Side>(cases, "drag on ring, their hue");
}

template <int Place>
void addRepaint(std::vector<ControlCase>* cases, const std::string& task)
{
    cases->push_back({task, "core", makeRepaint<Place, 400>, 0});
#ifdef NORVANE_BENCHMARK_COLOR_WIDGETS
    cases->push_back({task, "color_widgets", makeRepaint<kPeerAround, 400>, 0});
#endif
}

} // namespace

std::vector<ControlCase> wheelCases()
{
    std::vector<ControlCase> cases;
    addRepaint<kInDisc>(&cases, "repaint disc, 400");
    addRepaint<kInSquare>(&cases, "repaint square, 400");
    addRepaint<kInRing>(&cases, "repaint ring, 400");
    addDrags<400>(&cases);
    addDrags<1600>(&cases);
    cases.push_back({"drag with nine sliders, 400", "core", makeAllViewsDrag<400>, 2});
    return cases;
}

}} // namespace Norvane::Benchmarks
