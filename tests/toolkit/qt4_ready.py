#!/usr/bin/env python3
"""Refuses what Qt 4.8 lacks: no current system has that toolkit, so no compiler here would notice.

    qt4_ready.py                the whole tree; prints FILE:LINE: what is wrong
    qt4_ready.py --self-test    every rule refuses its bad line and lets its good one through

Not looked at: ui/toolkit/, where the toolkits' differences live, designer/, and files which say "Not for Qt 4:" in a
comment, with the reason, and stand in a folder whose CMakeLists.txt asks for NORVANE_QT GREATER 4.
"""

import os
import re
import sys

from source_text import code_of, line_of, read, source_files

# pattern, why it is refused, a line that must be refused, one that must pass
MOC_RULES = [
    (r"(?<!using )\bnamespace\s+\w+\s*::", "moc reads no A::B: write namespace A { namespace B {",
     "namespace Norvane::UI {", "using namespace Norvane::UI;"),
    (r'\bR"', "moc reads no raw string literals", 'QString text = R"(a "b")";', 'QString text = "R";'),
]

RULES = [
    # Versions
    (r"\bQT_VERSION\w*", "versions of Qt are told apart in ui/toolkit/ only",
     "#if QT_VERSION >= 0x050000", "// QT_VERSION"),
    (r"\bPY_(MAJOR|MINOR)_VERSION|\bPY_VERSION_HEX", "versions of Python are told apart in python/PythonVersion.h only",
     "#if PY_MAJOR_VERSION >= 3", "#include <python/PythonVersion.h>"),

    # Headers
    (r"#\s*include\s*<Qt(Widgets|Gui|Core|Concurrent)/", "modules are divided otherwise: include <QClass>",
     "#include <QtWidgets/QLabel>", "#include <QLabel>"),
    (r"#\s*include\s*<(QtWidgets|QtMath|QtConcurrent)>", "no such header",
     "#include <QtMath>", "#include <QtTest>"),

    # Connections
    (r"\b(dis)?connect\s*\([^;{}]*?&\s*(\w+::)+\w+\s*[,)]", "connect by SIGNAL() and SLOT()",
     "connect(box,\n    &QCheckBox::toggled, this, SLOT(x()));",
     "connect(&Host::it(), SIGNAL(a(bool&)), &box, SLOT(b()));"),
    (r"\bconnect\s*\([^;{}]*?\[[^][]*\]\s*[({]", "connect to slots, not to functions",
     "connect(box, SIGNAL(toggled(bool)), [this](bool on) { set(on); });",
     "connect(boxes[i], SIGNAL(toggled(bool)), this, SLOT(set(bool)));"),
    (r"\b(singleShot|invokeMethod)\s*\([^;{}]*?(\[[^][]*\]\s*[({]|&\s*(\w+::)+\w+\s*[,)])",
     "timers and calls by name take slots", "QTimer::singleShot(0, [&] { go(); });",
     "QTimer::singleShot(delays[0], &object, SLOT(go()));"),
    (r"\bsingleShot\s*\(\s*(\d+m?s\b|std::chrono)", "times are milliseconds",
     "QTimer::singleShot(5ms, this, SLOT(go()));", "QTimer::singleShot(5, this, SLOT(go()));"),
    (r"\bQSignalSpy\b[^;]*&\s*(\w+::)+\w+\s*\)", "spy by SIGNAL()",
     "QSignalSpy spy(&box, &QCheckBox::toggled);", "QSignalSpy spy(&box, SIGNAL(toggled(bool)));"),
    (r"\b\w*[sS]py\w*(\.|->)wait\s*\(", "wait with WAIT_FOR of tests/support/Waiting.h",
     "QVERIFY(toggledSpy.wait());", "work.wait();"),
    (r"\b(qOverload|QOverload|Q_ENUM|Q_ENUM_NS|Q_FLAG|Q_FLAG_NS|Q_NAMESPACE\w*|Q_PLUGIN_METADATA)\b", "unknown to moc",
     "Q_ENUM(Mode)", "Q_ENUMS(Mode) Q_FLAGS(Modes)"),
    (r"\bQ_PROPERTY\s*\([^)]*\bMEMBER\b", "a property needs functions",
     "Q_PROPERTY(int a MEMBER m_a)", "Q_PROPERTY(int a READ a WRITE setA)"),
    (r"\b(isSignalConnected|QMetaObject::Connection|QMetaMethod::fromSignal|QMetaEnum::fromType|methodSignature)\b",
     "not in the meta-object system yet", "QMetaObject::Connection link;", "const QMetaObject* meta;"),

    # Macros and small functions
    (r"\b(QStringLiteral|QByteArrayLiteral|QStringView|QLatin1StringView|QAnyStringView)\b|\bu\"",
     "write QLatin1String or QString::fromLatin1",
     'setText(QStringLiteral("a"));', 'setText(QLatin1String("a")); f(u8"a");'),
    (r"\b(QSignalBlocker|qAsConst|qExchange|qScopeGuard|QScopeGuard|Q_FALLTHROUGH|Q_NULLPTR|Q_DISABLE_COPY_MOVE)\b"
     r"|\bQT_WARNING_\w+", "came later; for most the standard library has its own",
     "for (int i : qAsConst(list))", "for (int i : std::as_const(list))"),
    (r"\b(qDegreesToRadians|qRadiansToDegrees|qNextPowerOfTwo|qUtf8Printable|qInfo|qCDebug|qCWarning)\b",
     "came later", "qInfo(\"a\");", "qDebug(\"a\"); qPrintable(a);"),
    (r"\bqEnvironmentVariable\w*", "use qgetenv",
     'if (qEnvironmentVariableIsSet("HOME"))', 'if (!qgetenv("HOME").isEmpty())'),
    (r"\bqInstallMessageHandler\b|\bQtMessageHandler\b|\bQMessageLogContext\b|\bQ_LOGGING_CATEGORY\b|\bQLoggingCategory\b",
     "messages are handled otherwise", "qInstallMessageHandler(note);", "qWarning();"),
    (r"\bQt::(endl|flush|hex|dec|left|right|fixed|ws|SkipEmptyParts|KeepEmptyParts|FindDirectChildrenOnly"
     r"|FindChildrenRecursively|AA_\w*HighDpi\w*|WindowTransparentForInput|WindowDoesNotAcceptFocus"
     r"|ApplicationState\w*|ApplicationActive)\b", "no such value of Qt's", "out << Qt::endl;", "Qt::AlignLeft"),

    # Classes that came later
    (r"\b(QScreen|QWindow|QGuiApplication|QSurfaceFormat|QStyleHints|QOpenGL\w+|QBackingStore)\b",
     "ui/toolkit/Screens.h asks about screens", "#include <QScreen>", "QMainWindow QDesktopWidget"),
    (r"\bQAccessible\w*", "assistive technology is spoken to by ui/toolkit/",
     "#include <QAccessible>", "setAccessibleName(name);"),
    (r"\b(QJson\w+|QCommandLine\w+|QStandardPaths|QRegularExpression\w*|QMimeDatabase|QMimeType|QSaveFile|QLockFile"
     r"|QTemporaryDir|QStorageInfo|QUrlQuery|QCollator|QTimeZone|QRandomGenerator|QVersionNumber"
     r"|QOperatingSystemVersion|QKeySequenceEdit|QFileDevice|QFileSelector|QDeadlineTimer|QRecursiveMutex"
     r"|QAtomicInteger|QCalendar|QEnterEvent|QMultiHashIterator|QtMessageLog\w+)\b", "no such class",
     "QRegularExpression pattern;", "QRegExp QMimeData QAtomicInt"),

    # Text, containers and files
    (r"\basprintf\b", "use QString::arg", 'QString::asprintf("%d", 1);', 'QString::fromLatin1("%1").arg(1);'),
    (r"\.(toHtmlEscaped|chopped|swapItemsAt|constFirst|constLast|keyValueBegin|asKeyValueRange|emplaceBack|crbegin"
     r"|removeIf|isUpper|isLower|toStdU16String)\s*\(", "a later function of strings or containers",
     "f(list.constFirst());", "f(list.first());"),
    (r"\.join\s*\(\s*('|QLatin1Char|QChar)", "strings are joined by strings",
     "names.join(QLatin1Char(','));", 'names.join(",");'),
    (r"\bQ(StringList|ByteArrayList|(Set|Map|MultiMap|Hash|MultiHash)\s*<[^;{}()]*>)(\s+\w+)?\s*(=\s*)?\{\s*[^}\s]",
     "no list of initializers: use <<, insert()", "const QStringList names = {a, b};",
     "QStringList names{}; QStringList f() const { return names; }" "QList<int>{1};"),
    (r"\bQ(List|Vector|Set)\s*<[^;{}]*>\s*(\w+\s*)?\(\s*\w+(\.|->)c?begin\(", "no container from a range",
     "QSet<int> all(list.begin(), list.end());", "QSet<int> all(list.toSet());"),
    (r"\b(QFileInfo::exists|removeRecursively|listSeparator|QByteArray::fromStdString|formattedDataSize)\s*\(",
     "a later function", "if (QFileInfo::exists(path))", "if (QFile::exists(path))"),
    (r"\b(to|set|from|current)SecsSinceEpoch\b|\bstartOfDay\b|\bendOfDay\b",
     "times are toTime_t or milliseconds since the epoch",
     "f(now.toSecsSinceEpoch());", "f(now.toMSecsSinceEpoch());"),
    (r"\bdurationElapsed\b|\bdurationTo\b|\bQElapsedTimer::Duration\b", "QElapsedTimer counts milliseconds",
     "f(timer.durationElapsed());", "f(timer.elapsed());"),

    # Threads
    (r"\bQThread::(create|sleep|msleep|usleep)\s*\(", "protected, or not there; a thread may call its own msleep()",
     "QThread::msleep(5);", "void run() { msleep(5); }"),
    (r"\b(requestInterruption|isInterruptionRequested)\b", "threads have no such flag",
     "if (isInterruptionRequested())", "if (isRunning())"),
    (r"\.(loadRelaxed|storeRelaxed|loadAcquire|storeRelease)\s*\(", "use std::atomic",
     "f(count.loadRelaxed());", "f(count.load(std::memory_order_relaxed));"),

    # Painting
    (r"(\.|->)horizontalAdvance\s*\(|\bcapHeight\b", "ui/toolkit/Painting.h measures text",
     "metrics.horizontalAdvance(text)", "textWidth(metrics, text)"),
    (r"(\.|->)(devicePixelRatioF?|setDevicePixelRatio|devicePixelRatioFScale)\s*\(",
     "ui/toolkit/Painting.h knows the density", "pixmap.setDevicePixelRatio(2);", "setDevicePixelRatio(pixmap, 2);"),
    (r"(\.|->)grab\s*\(|(\.|->)(windowHandle|screen)\s*\(\s*\)", "ui/toolkit/ has grabPixmap() and Screens",
     "f(widget->grab());", "f(grabPixmap(widget));"),
    (r"\bFormat_(RGBA8888\w*|RGBX8888|RGBA64\w*|RGBX64|Grayscale(8|16)|Alpha8|BGR\w*|A2\w*|RGB30)\b",
     "no such picture format", "QImage::Format_RGBA8888", "QImage::Format_ARGB32 Format_RGB888"),
    (r"(\.|->)(pixelColor|setPixelColor|sizeInBytes|setAutoTransform|marginsAdded|marginsRemoved|convertTo)\s*\(",
     "a later function of pictures or rectangles", "f(image.pixelColor(0, 0));", "f(image.pixel(0, 0));"),
    (r"\bQColor::Hex(A?)Rgb\b|\bfromRgba64\b|\bPlaceholderText\b(?!\s*\()|\bQFontDatabase::systemFont\b"
     r"|\bQFont::(Thin|ExtraLight|Medium|ExtraBold)\b", "no such colour or font",
     "palette.color(QPalette::PlaceholderText)", "edit->setPlaceholderText(text);"),

    # Events
    (r"(\.|->)(angleDelta|pixelDelta|localPos|windowPos|screenPos|globalPosition)\s*\(",
     "ui/toolkit/Events.h reads events", "f(event->angleDelta());", "f(wheelDelta(event));"),

    # Widgets
    (r"(\.|->)(setClearButtonEnabled|currentData|setCurrentText|setSectionResizeMode|setSectionsMovable"
     r"|setSectionsClickable|setAutoHide|setTabVisible|setChangeCurrentOnDrag|addSection|setToolTipsVisible"
     r"|setTabStopDistance|replaceWidget|setRetainSizeWhenHidden|setWindowFlag|setCheckBox|toolTipDuration"
     r"|setToolTipDuration|hasHeightForWidth|setShortcutVisibleInContextMenu)\s*\(", "a later function of widgets",
     "header->setSectionResizeMode(mode);", "window->setWindowFlags(flags);"),
    (r"\b(currentTextChanged|textActivated|tabBarClicked|tabBarDoubleClicked|textHighlighted)\s*\(",
     "a later signal", "SIGNAL(currentTextChanged(QString))", "SIGNAL(currentIndexChanged(QString))"),
    (r"\bsetApplicationDisplayName\b|\bsetDesktopFileName\b|\bQApplication::(primaryScreen|screens|screenAt)\b",
     "the application has no such function", "QApplication::primaryScreen()", "setApplicationName(name);"),
    (r"\bQKeySequence::(Cancel|FullScreen|Deselect|listFromString)\b", "no such key",
     "QKeySequence::FullScreen", "QKeySequence::Close"),

    # The test library
    (r"\bQTRY_\w+\s*\(|\bqWaitFor\w*\b", "wait with WAIT_FOR of tests/support/Waiting.h",
     "QTRY_COMPARE(a, b);", "WAIT_FOR(a == b);\n#ifdef QTRY_VERIFY"),
    (r"\bQVERIFY_(EXCEPTION_THROWN|THROWS_EXCEPTION|THROWS_NO_EXCEPTION)\b|\bQCOMPARE_(EQ|NE|LT|LE|GT|GE)\b",
     "catch the exception and compare", "QVERIFY_EXCEPTION_THROWN(f(), E);", "QVERIFY(isThrown);"),
    (r"\b(QTEST_GUILESS_MAIN|QFINDTESTDATA|failOnWarning)\b|\bQTest::addRow\b", "not in the test library yet",
     'QTest::addRow("a");', 'QTest::newRow("a"); layout->addRow(row);'),
    (r"(?<!define NORVANE_SKIP\(reason\) )\bQSKIP\s*\(", "it takes two arguments: use NORVANE_SKIP",
     'QSKIP("none");', 'NORVANE_SKIP("none");\n#define NORVANE_SKIP(reason) QSKIP(reason)'),
]

OPTIONAL = re.compile(r"//.*\bNot for Qt 4: \w")


def is_optional(path, text):
    """Whether the file is compiled for later toolkits only, and its folder's CMakeLists.txt knows that."""
    return bool(OPTIONAL.search(text)) and "NORVANE_QT GREATER 4" in read(
        os.path.join(os.path.dirname(path), "CMakeLists.txt"))


def rules_for(path, text):
    if path.startswith(("ui/toolkit/", "designer/", "tests/designer/")) or is_optional(path, text):
        return MOC_RULES
    if path == "python/PythonVersion.h":
        return MOC_RULES + [rule for rule in RULES if "PY_" not in rule[0]]
    return MOC_RULES + RULES


def problems(path, text, rules):
    code = code_of(text)
    for pattern, why, _, _ in rules:
        for match in re.finditer(pattern, code):
            yield "%s:%d: %s: %s" % (path, line_of(code, match.start()), match.group().split("\n")[0], why)


def check_tree():
    paths = source_files()
    found = []
    for path in paths:
        text = read(path)
        found += problems(path, text, rules_for(path, text))
    print("\n".join(found + ["%d files, %d problems" % (len(paths), len(found))]))
    return bool(found)


def self_test():
    every = MOC_RULES + RULES
    wrong = []
    for rule in every:
        if not list(problems("bad", rule[2], [rule])):
            wrong.append("let through: " + rule[2])
        wrong += ["refused: " + problem for problem in problems(rule[3], rule[3], every)]
        if list(problems("comment", "// %s\nconst char* a = \"%s\";" % (rule[1], rule[1]), every)):
            wrong.append("refused in a comment: " + rule[1])
    if list(problems("a.cpp", "/*\n*/ int a = 1'000;\nQ_ENUM(A)\n", RULES)) != ["a.cpp:3: Q_ENUM: unknown to moc"]:
        wrong.append("the line is not told")
    print("\n".join(wrong + ["%d rules, %d wrong" % (len(every), len(wrong))]))
    return bool(wrong)


if __name__ == "__main__":
    sys.exit(self_test() if "--self-test" in sys.argv[1:] else check_tree())
