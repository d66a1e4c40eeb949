#pragma once

#include <QCoreApplication>
#include <QtTest>

/// The main function of a test that needs no window system. Qt 4's test library has none.
#define NORVANE_GUILESS_MAIN(Test)                                                                           \
    int main(int argc, char* argv[])                                                                         \
    {                                                                                                        \
        QCoreApplication application(argc, argv);                                                            \
        Test test;                                                                                           \
        return QTest::qExec(&test, argc, argv);                                                              \
    }
