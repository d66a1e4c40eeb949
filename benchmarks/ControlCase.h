#pragma once

#include <memory>
#include <string>
#include <vector>

namespace Norvane { namespace Benchmarks {

/// A control at work.
class Control
{
public:
    virtual ~Control();
    /// What is measured.
    virtual void step() = 0;
    /// What is wrong with what it did, or an empty text.
    virtual std::string problem() = 0;
};

/// A control doing a task. The one of this library is called "core".
struct ControlCase {
    std::string task;
    std::string contestant;
    std::unique_ptr<Control> (*make)();
    /// What is aimed at: core takes at most so many milliseconds; others take at least so many times as long
    /// as core. 0 for nothing.
    double aim;
};

std::vector<ControlCase> sliderCases();
std::vector<ControlCase> wheelCases();

}} // namespace Norvane::Benchmarks
