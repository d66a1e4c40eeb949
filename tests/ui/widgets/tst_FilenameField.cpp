#include <ui/widgets/FilenameField.h>

#include <tests/support/Desk.h>
#include <ui/toolkit/Painting.h>
#include <ui/toolkit/Screens.h>

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>

using namespace NorvaneTest;
using Norvane::UI::FilenameField;

class tst_FilenameField : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void promptFollowsTextAndFocus();
    void editingReports();
    void iconShowsWhatIsNamed();
    void dialogChooses_data();
    void dialogChooses();
    void cancelledDialogChangesNothing();
    void fieldIsDeletedUnderItsDialog();
};

namespace {

const char* const kFolder = NORVANE_SAMPLES;

QString pathOf(const char* name)
{
    return QDir(latin1(kFolder)).filePath(latin1(name));
}

/// Writes down a field's signals: "C" changed, "S" set, "D" dialog shown.
class Log : public QObject
{
    Q_OBJECT
public:
    explicit Log(FilenameField* field)
    {
        connect(field, SIGNAL(filenameChanged()), this, SLOT(changed()));
        connect(field, SIGNAL(filenameSet()), this, SLOT(set()));
        connect(field, SIGNAL(fileDialogShown(QFileDialog*)), this, SLOT(dialogShown(QFileDialog*)));
    }

    QString text;

private Q_SLOTS:
    void changed() { text.append(QLatin1Char('C')); }
    void set() { text.append(QLatin1Char('S')); }
    void dialogShown(QFileDialog*) { text.append(QLatin1Char('D')); }
};

/// The user in front of a file dialog: does something once it has come up and has the keyboard.
class DialogUser : public QObject
{
    Q_OBJECT
public:
    /// Types \a names and Return; without names, presses Escape.
    explicit DialogUser(const QString& names, QWidget* toDelete = nullptr)
        : m_names(names)
        , m_toDelete(toDelete)
    {
        startTimer(10);
    }

    bool sawDialog = false;
    QFileDialog::FileMode mode = QFileDialog::AnyFile;

protected:
    void timerEvent(QTimerEvent*) override
    {
        QFileDialog* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (sawDialog || !dialog || !dialog->isActiveWindow())
            return;
        sawDialog = true;
        mode = dialog->fileMode();
        QLineEdit* const edit = dialog->findChild<QLineEdit*>(latin1("fileNameEdit"));
        if (m_toDelete) {
            delete m_toDelete;
        } else if (m_names.isNull()) {
            QTest::keyClick(dialog, Qt::Key_Escape);
        } else {
            edit->setText(m_names);
            QTest::keyClick(edit, Qt::Key_Return);
        }
    }

private:
    const QString m_names;
    QWidget* const m_toDelete;
};

/// A window with a field and another one to take the focus away.
struct Form {
    explicit Form(QFileDialog::FileMode mode = QFileDialog::AnyFile, bool native = false)
        : field(new FilenameField(&window, mode, native))
        , edit(field->findChild<QLineEdit*>())
    {
        window.setGeometry(100, 100, 400, 120);
        field->setGeometry(10, 10, 380, 30);
        other.setGeometry(10, 60, 200, 30);
    }

    bool focus(QWidget* widget)
    {
        widget->setFocus();
        return Desk::activate(&window) && waitUntil([&] { return QApplication::focusWidget() == widget; });
    }

    void choose() { QTest::mouseClick(field->findChild<QPushButton*>(), Qt::LeftButton); }

    QWidget window;
    QLineEdit other{&window};
    FilenameField* field;
    QLineEdit* edit;
};

} // namespace

// Under the mouse, Qt asks the X server about the frame of a dialog that is gone already, and warns.
void tst_FilenameField::initTestCase()
{
    QCursor::setPos(Norvane::UI::Screens::availableGeometry(0).bottomRight() - QPoint(5, 5));
}

void tst_FilenameField::promptFollowsTextAndFocus()
{
    Form form;
    QCOMPARE(form.field->prompt(), QString());
    form.field->setPrompt(latin1("A folder"));
    const QLabel* const prompt = form.edit->findChild<QLabel*>();
    QVERIFY(form.focus(&form.other));
    QVERIFY(prompt->isVisible());
    QTest::keyClick(&form.other, Qt::Key_Tab);
    WAIT_FOR(form.edit->hasFocus());
    QVERIFY(!prompt->isVisible());
    QTest::keyClick(form.edit, Qt::Key_Backtab);
    WAIT_FOR(form.other.hasFocus());
    QVERIFY(prompt->isVisible());
    form.field->setFilename(latin1("/"));
    QVERIFY(!prompt->isVisible());
    form.field->setPrompt(QString());
    QCOMPARE(form.field->prompt(), QString());
}

void tst_FilenameField::editingReports()
{
    Form form;
    QVERIFY(form.focus(form.edit));
    const Log log(form.field);
    QTest::keyClicks(form.edit, latin1("/a"));
    QCOMPARE(log.text, latin1("CC"));
    QTest::keyClick(form.edit, Qt::Key_Return);
    QCOMPARE(log.text, latin1("CCS"));
    QTest::keyClicks(form.edit, latin1("b"));
    QVERIFY(form.focus(&form.other));
    QCOMPARE(log.text, latin1("CCSCS"));
    form.field->setFilename(latin1("/c"));
    form.field->setFilename(latin1("/c"));
    QCOMPARE(log.text, latin1("CCSCS"
                              "CCS"
                              "CS"));
}

void tst_FilenameField::iconShowsWhatIsNamed()
{
    Form form;
    QLabel* const icon = form.field->findChild<QLabel*>();
    QCOMPARE(icon->width(), 24);
    QList<QImage> icons;
    for (const char* const name : {"Dunes.png", "", "StillLife.png"}) {
        form.field->setFilename(pathOf(name));
        icons.append(Norvane::UI::grabPixmap(icon).toImage());
    }
    QVERIFY(icons[0] != icons[1]);
    QVERIFY(icons[0] == icons[2]);
}

void tst_FilenameField::dialogChooses_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("name");
    const QString dunes = pathOf("Dunes.png");
    QTest::newRow("a new file") << int(QFileDialog::AnyFile) << pathOf("new.png") << pathOf("new.png");
    QTest::newRow("a file") << int(QFileDialog::ExistingFile) << dunes << dunes;
    QTest::newRow("files") << int(QFileDialog::ExistingFiles) << latin1("\"Dunes.png\" \"TestChart.png\"")
                           << dunes;
    QTest::newRow("a folder") << int(QFileDialog::Directory) << latin1(kFolder) << latin1(kFolder);
}

void tst_FilenameField::dialogChooses()
{
    QFETCH(int, mode);
    QFETCH(QString, typed);
    for (const bool native : {false, true}) {
        Form form(QFileDialog::FileMode(mode), native);
        form.field->setFilename(pathOf("missing"));
        QVERIFY(form.focus(&form.other));
        const Log log(form.field);
        DialogUser user(typed);
        form.choose();
        QVERIFY(user.sawDialog);
        if (!native)
            QCOMPARE(int(user.mode), mode);
        QTEST(form.field->filename(), "name");
        QCOMPARE(log.text, latin1(native ? "CS" : "DCS"));
    }
}

void tst_FilenameField::cancelledDialogChangesNothing()
{
    for (const bool native : {false, true}) {
        Form form(QFileDialog::ExistingFile, native);
        QVERIFY(form.focus(form.edit));
        QTest::keyClicks(form.edit, latin1("/a"));
        Log log(form.field);
        DialogUser user((QString()));
        QMetaObject::invokeMethod(form.field, "openFileDialog");
        QVERIFY(user.sawDialog);
        // Whether the window manager gives the window the keyboard back at once is its own affair.
        QVERIFY(Desk::activate(&form.window));
        QVERIFY(form.edit->hasFocus());
        QCOMPARE(form.field->filename(), latin1("/a"));
        QCOMPARE(log.text, latin1(native ? "" : "D"));
        // From here on leaving the edit finishes the editing again.
        QVERIFY(form.focus(&form.other));
        QCOMPARE(log.text, latin1(native ? "S" : "DS"));
    }
}

void tst_FilenameField::fieldIsDeletedUnderItsDialog()
{
    for (const bool native : {false, true}) {
        Form form(QFileDialog::ExistingFile, native);
        QVERIFY(form.focus(&form.other));
        const Log log(form.field);
        DialogUser user(QString(), form.field);
        form.choose();
        QVERIFY(user.sawDialog);
        QCOMPARE(log.text, latin1(native ? "" : "D"));
        QVERIFY(!QApplication::activeModalWidget());
    }
}

QTEST_MAIN(tst_FilenameField)
#include "tst_FilenameField.moc"
