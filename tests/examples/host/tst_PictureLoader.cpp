#include <examples/host/BackgroundJob.h>
#include <examples/host/PictureLoader.h>

#include <ui/progress/DialogProgressManager.h>

#include <tests/support/Waiting.h>

#include <QDir>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryFile>
#include <QThread>

using namespace Norvane;
using namespace Norvane::Host;

class tst_PictureLoader : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { BackgroundJob::waitForAll(); }
    void pictureOrProblemComes_data();
    void pictureOrProblemComes();
    void onlyLastOneComes();
    void longWorkIsCancelledByTheUser();

private:
    UI::DialogProgressManager m_manager;
};

namespace {

QString sample(const char* name)
{
    return QDir(QLatin1String(NORVANE_SAMPLES)).filePath(QLatin1String(name));
}

/// Goes on until it is cancelled.
class EndlessJob : public BackgroundJob
{
public:
    EndlessJob()
        : BackgroundJob(QLatin1String("Endless"))
    {
    }

protected:
    void work() override
    {
        while (goOn(1, 2))
            QThread::yieldCurrentThread();
    }
};

} // namespace

void tst_PictureLoader::pictureOrProblemComes_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("largest");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("problem");
    const QString program = QCoreApplication::applicationFilePath();
    QTest::newRow("whole") << sample("ColourChart.png") << QSize() << QSize(960, 664) << "";
    QTest::newRow("shrunk") << sample("ColourChart.png") << QSize(96, 96) << QSize(96, 66) << "";
    QTest::newRow("broken") << program << QSize() << QSize(0, 0) << "no picture that can be read";
    QTest::newRow("missing") << sample("None.png") << QSize() << QSize(0, 0) << "no such file";
    QTest::newRow("broken frame") << QString(QLatin1String("frame:v210:6x1|") + program) << QSize()
                                  << QSize(0, 0) << "a frame of 6 x 1 pixels in V210 has 16.";
}

void tst_PictureLoader::pictureOrProblemComes()
{
    QFETCH(QString, path);
    QFETCH(QSize, largest);
    QFETCH(QString, problem);
    PictureLoader loader;
    QSignalSpy loaded(&loader, SIGNAL(loaded(QImage, QString)));
    loader.load(path, largest);
    QVERIFY(loader.isLoading());
    WAIT_FOR(!loaded.isEmpty());
    QVERIFY(!loader.isLoading());
    QTEST(loaded[0][0].value<QImage>().size(), "size");
    QVERIFY2(loaded[0][1].toString().contains(problem), qPrintable(loaded[0][1].toString()));
}

void tst_PictureLoader::onlyLastOneComes()
{
    PictureLoader().load(sample("ColourChart.png"));
    PictureLoader loader;
    QSignalSpy loaded(&loader, SIGNAL(loaded(QImage, QString)));
    loader.load(sample("ColourChart.png"));
    loader.load(sample("None.png"));
    loader.load(sample("ColourChart.png"), QSize(48, 48));
    WAIT_FOR(!loaded.isEmpty());
    // One that was read before it was given up waits for its receiver.
    loader.load(sample("Dunes.png"));
    BackgroundJob::waitForAll();
    loader.load(sample("ColourChart.png"), QSize(24, 24));
    WAIT_FOR(loaded.size() > 1);
    QCOMPARE(loaded[0][0].value<QImage>().width(), 48);
    QCOMPARE(loaded[1][0].value<QImage>().width(), 24);
    loader.load(sample("Dunes.png"));
    BackgroundJob::waitForAll();
    loader.cancel();
    QCoreApplication::processEvents();
    QCOMPARE(int(loaded.size()), 2);
}

void tst_PictureLoader::longWorkIsCancelledByTheUser()
{
    BackgroundJob* const job = new EndlessJob;
    QSignalSpy finished(job, SIGNAL(finished()));
    const QPointer<BackgroundJob> watched(job);
    job->start();
    QWidget* const dialog = m_manager.progressWidget();
    WAIT_FOR(dialog->isVisible() && dialog->findChild<QPushButton*>());
    QTest::mouseClick(dialog->findChild<QPushButton*>(), Qt::LeftButton);
    WAIT_FOR(finished.size() == 1 && !watched);
    WAIT_FOR(m_manager.tasksCount() == 0);
}

QTEST_MAIN(tst_PictureLoader)
#include "tst_PictureLoader.moc"
