#include <benchmarks/ControlCase.h>

#include <ui/sliders/Slider.h>

#include <QImage>
#include <QWidget>

#ifdef NORVANE_BENCHMARK_QWT
#include <qwt_scale_engine.h>
#include <qwt_slider.h>
#endif

namespace Norvane { namespace Benchmarks {

namespace {

const int kLength = 400;
const int kThickness = 20;

/// Moves the thumb and paints the whole slider, with background, ticks and numbers.
template <class Widget>
class SliderRepaint : public Control
{
public:
    explicit SliderRepaint(Widget* widget, const QSize& size, double from, double to)
        : m_widget(widget)
        , m_image(size, QImage::Format_RGB32)
        , m_from(from)
        , m_to(to)
    {
        m_widget->resize(size);
    }

    void step() override
    {
        m_turn = !m_turn;
        m_widget->setValue(m_turn ? m_from : m_to);
        m_widget->render(&m_image);
    }

    std::string problem() override
    {
        if (m_widget->value() != (m_turn ? m_from : m_to))
            return "the value is not the one that was set";
        // Numbers stand in the lower half: each changes its columns from background to text.
        int changes = 0;
        bool wasBlank = true;
        for (int x = 0; x < m_image.width(); ++x) {
            bool isBlank = true;
            for (int y = m_image.height() - 6; y < m_image.height(); ++y)
                isBlank = isBlank && m_image.pixel(x, y) == m_image.pixel(0, m_image.height() - 1);
            changes += isBlank != wasBlank;
            wasBlank = isBlank;
        }
        return changes >= 12 ? std::string() : "numbers are missing";
    }

private:
    const std::unique_ptr<Widget> m_widget;
    QImage m_image;
    const double m_from;
    const double m_to;
    bool m_turn = false;
};

template <UI::Slider::SliderMode Mode>
std::unique_ptr<Control> makeSlider()
{
    UI::Slider* const slider = new UI::Slider(UI::Slider::RealValue, Mode, Qt::Horizontal, nullptr);
    const bool isLog = Mode == UI::Slider::LogMode;
    slider->setRange(isLog ? 0.01 : 0, isLog ? 100 : 1);
    return std::make_unique<SliderRepaint<UI::Slider>>(slider, QSize(kLength, kThickness), 0.3, 0.6);
}

#ifdef NORVANE_BENCHMARK_QWT
template <bool IsLog>
std::unique_ptr<Control> makeQwtSlider()
{
    QwtSlider* const slider = new QwtSlider(Qt::Horizontal);
    slider->setAutoFillBackground(true);
    slider->setScalePosition(QwtSlider::LeadingScale);
    // About as many numbers and ticks as ours has.
    slider->setScaleMaxMajor(IsLog ? 5 : 10);
    slider->setScaleMaxMinor(IsLog ? 9 : 2);
    if (IsLog)
        slider->setScaleEngine(new QwtLogScaleEngine);
    slider->setScale(IsLog ? 0.01 : 0, IsLog ? 100 : 1);
    const QSize size(kLength, slider->sizeHint().height());
    return std::make_unique<SliderRepaint<QwtSlider>>(slider, size, 0.3, 0.6);
}
#endif

} // namespace

std::vector<ControlCase> sliderCases()
{
    const std::string linear = "repaint of a linear slider";
    const std::string log = "repaint of a logarithmic slider";
    std::vector<ControlCase> cases = {
        {linear, "core", makeSlider<UI::Slider::LinearMode>, 0},
        {log, "core", makeSlider<UI::Slider::LogMode>, 0},
    };
#ifdef NORVANE_BENCHMARK_QWT
    cases.push_back({linear, "QwtSlider", makeQwtSlider<false>, 2});
    cases.push_back({log, "QwtSlider", makeQwtSlider<true>, 2});
#endif
    return cases;
}

}} // namespace Norvane::Benchmarks
