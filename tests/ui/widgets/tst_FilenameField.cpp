#include <ui/widgets/FilenameField.h>

#include <tests/support/Desk.h>
#include <ui/toolkit/Painting.h>

#include <QDir>
#include <QFile>
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
    void cleanupTestCase();
    void promptFollowsTextAndFocus();
    void promptIsCentred_data();
    void promptIsCentred();
    void settingNameReports_data();
    void settingNameReports();
    void editingReports();
    void iconShowsWhatIsNamed();
    void dialogChooses_data();
    void dialogChooses();
    void cancelledDialogChangesNothing_data();
    void cancelledDialogChangesNothing();
    void fieldIsDeletedUnderItsDialog_data();
    void fieldIsDeletedUnderItsDialog();

private:
    QString pathOf(const char* name) const { return m_folder.filePath(latin1(name)); }

    QDir m_folder;
};

namespace {

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

void addDialogKinds()
{
    QTest::addColumn<bool>("native");
    QTest::newRow("Qt's own") << false;
    QTest::newRow("the platform's") << true;
}

} // namespace

void tst_FilenameField::initTestCase()
{
    m_folder = QDir::temp();
    const QString name = latin1("tst_FilenameField-%1").arg(QCoreApplication::applicationPid());
    QVERIFY(m_folder.mkdir(name) && m_folder.cd(name) && m_folder.mkdir(latin1("folder")));
    for (const char* const file : {"a.txt", "b.txt"}) {
        QFile created(pathOf(file));
        QVERIFY(created.open(QIODevice::WriteOnly));
    }
}

void tst_FilenameField::cleanupTestCase()
{
    QVERIFY(m_folder.remove(latin1("a.txt")) && m_folder.remove(latin1("b.txt")));
    QVERIFY(m_folder.rmdir(latin1("folder")) && m_folder.rmdir(m_folder.path()));
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

void tst_FilenameField::promptIsCentred_data()
{
    QTest::addColumn<int>("pointSize");
    QTest::addColumn<int>("height");
    QTest::newRow("small") << 8 << 30;
    QTest::newRow("large font") << 30 << 80;
}

void tst_FilenameField::promptIsCentred()
{
    QFETCH(int, pointSize);
    QFETCH(int, height);
    Form form;
    form.field->setPrompt(latin1("A"));
    form.field->setPrompt(latin1("A folder"));
    QFont font = form.field->font();
    font.setPointSize(pointSize);
    form.field->setFont(font);
    form.field->resize(380, height);
    QVERIFY(form.focus(&form.other));
    const QLabel* const prompt = form.edit->findChild<QLabel*>();
    QCOMPARE(prompt->pos(), QPoint(4, (form.edit->height() - prompt->height()) / 2));
    QCOMPARE(prompt->size(), prompt->sizeHint());
}

void tst_FilenameField::settingNameReports_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("signals");
    QTest::newRow("another name") << "/b"
                                  << "CCS";
    QTest::newRow("the same name") << "/a"
                                   << "CS";
}

void tst_FilenameField::settingNameReports()
{
    QFETCH(QString, name);
    Form form;
    form.field->setFilename(latin1("/a"));
    const Log log(form.field);
    form.field->setFilename(name);
    QCOMPARE(form.field->filename(), name);
    QTEST(log.text, "signals");
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
}

void tst_FilenameField::iconShowsWhatIsNamed()
{
    Form form;
    QLabel* const icon = form.field->findChild<QLabel*>();
    QCOMPARE(icon->width(), 24);
    QList<QImage> icons;
    for (const char* const name : {"a.txt", "folder", "b.txt"}) {
        form.field->setFilename(pathOf(name));
        icons.append(Norvane::UI::grabPixmap(icon).toImage());
    }
    QVERIFY(icons[0] != icons[1]);
    QVERIFY(icons[0] == icons[2]);
}

void tst_FilenameField::dialogChooses_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("typed"); // with %1 for the folder
    QTest::addColumn<QString>("name");
    QTest::newRow("a new file") << int(QFileDialog::AnyFile) << "%1/new.txt"
                                << "new.txt";
    QTest::newRow("a file") << int(QFileDialog::ExistingFile) << "%1/b.txt"
                            << "b.txt";
    QTest::newRow("files") << int(QFileDialog::ExistingFiles) << "\"b.txt\" \"a.txt\""
                           << "b.txt";
    QTest::newRow("a folder") << int(QFileDialog::Directory) << "%1/folder"
                              << "folder";
}

void tst_FilenameField::dialogChooses()
{
    QFETCH(int, mode);
    QFETCH(QString, typed);
    QFETCH(QString, name);
    for (const bool native : {false, true}) {
        Form form(QFileDialog::FileMode(mode), native);
        form.field->setFilename(pathOf("missing"));
        QVERIFY(form.focus(&form.other));
        const Log log(form.field);
        DialogUser user(typed.contains(QLatin1Char('%')) ? typed.arg(m_folder.path()) : typed);
        form.choose();
        QVERIFY(user.sawDialog);
        if (!native)
            QCOMPARE(int(user.mode), mode);
        QCOMPARE(form.field->filename(), m_folder.filePath(name));
        QCOMPARE(log.text, latin1(native ? "CS" : "DCS"));
    }
}

void tst_FilenameField::cancelledDialogChangesNothing_data()
{
    addDialogKinds();
}

void tst_FilenameField::cancelledDialogChangesNothing()
{
    QFETCH(bool, native);
    Form form(QFileDialog::ExistingFile, native);
    form.field->setFilename(pathOf("a.tx"));
    QVERIFY(form.focus(form.edit));
    QTest::keyClicks(form.edit, latin1("t"));
    const Log log(form.field);
    DialogUser user((QString()));
    QMetaObject::invokeMethod(form.field, "openFileDialog");
    QVERIFY(user.sawDialog);
    WAIT_FOR(form.edit->hasFocus());
    QCOMPARE(form.field->filename(), pathOf("a.txt"));
    QCOMPARE(log.text, latin1(native ? "" : "D"));
    // From here on leaving the edit finishes the editing again.
    QVERIFY(form.focus(&form.other));
    QCOMPARE(log.text, latin1(native ? "S" : "DS"));
}

void tst_FilenameField::fieldIsDeletedUnderItsDialog_data()
{
    addDialogKinds();
}

void tst_FilenameField::fieldIsDeletedUnderItsDialog()
{
    QFETCH(bool, native);
    Form form(QFileDialog::ExistingFile, native);
    QVERIFY(form.focus(&form.other));
    const Log log(form.field);
    DialogUser user(QString(), form.field);
    form.choose();
    QVERIFY(user.sawDialog);
    QCOMPARE(log.text, latin1(native ? "" : "D"));
    QVERIFY(!QApplication::activeModalWidget());
}

QTEST_MAIN(tst_FilenameField)
#include "tst_FilenameField.moc"
