#include <examples/host/BackgroundJob.h>
#include <examples/host/PictureLoader.h>

#include <ui/progress/DialogProgressManager.h>

#include <tests/support/Waiting.h>

#include <QDir>
#include <QPushButton>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryFile>
#include <QThread>

#include <memory>

using namespace Norvane;
using namespace Norvane::Host;

class tst_PictureLoader : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void pictureOrProblemComes_data();
    void pictureOrProblemComes();
    void lastOneComes();
    void nothingComesAfterwards_data();
    void nothingComesAfterwards();
    void longWorkIsCancelledByTheUser();

private:
    std::unique_ptr<UI::DialogProgressManager> m_manager;
};

namespace {

QString sample(const char* name)
{
    return QDir(QLatin1String(NORVANE_SAMPLES)).filePath(QLatin1String(name));
}

/// Holds all threads for as long as it lives, so that readings wait.
class ThreadHolder
{
public:
    ThreadHolder()
    {
        for (int i = 0; i < m_count; ++i)
            (new Holding(&m_end))->start();
    }
    ~ThreadHolder()
    {
        m_end.release(m_count);
        BackgroundJob::waitForAll();
    }

private:
    class Holding : public BackgroundJob
    {
    public:
        explicit Holding(QSemaphore* end)
            : BackgroundJob(QString())
            , m_end(end)
        {
        }

    protected:
        void work() override { m_end->acquire(); }

    private:
        QSemaphore* const m_end;
    };

    const int m_count = QThread::idealThreadCount();
    QSemaphore m_end;
};

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

void tst_PictureLoader::initTestCase()
{
    m_manager.reset(new UI::DialogProgressManager);
}

void tst_PictureLoader::cleanup()
{
    BackgroundJob::waitForAll();
}

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

void tst_PictureLoader::lastOneComes()
{
    PictureLoader loader;
    QSignalSpy loaded(&loader, SIGNAL(loaded(QImage, QString)));
    {
        const ThreadHolder holder;
        loader.load(sample("ColourChart.png"));
        loader.load(sample("None.png"));
        loader.load(sample("ColourChart.png"), QSize(48, 48));
    }
    WAIT_FOR(!loaded.isEmpty());
    // One that was read before it was given up waits for its receiver.
    loader.load(sample("Dunes.png"));
    BackgroundJob::waitForAll();
    loader.load(sample("ColourChart.png"), QSize(24, 24));
    WAIT_FOR(loaded.size() > 1);
    QCOMPARE(loaded[0][0].value<QImage>().width(), 48);
    QCOMPARE(loaded[1][0].value<QImage>().width(), 24);
    QCOMPARE(int(loaded.size()), 2);
}

void tst_PictureLoader::nothingComesAfterwards_data()
{
    QTest::addColumn<bool>("isRead");
    QTest::addColumn<bool>("isDeleted");
    QTest::newRow("waiting, cancelled") << false << false;
    QTest::newRow("waiting, deleted") << false << true;
    QTest::newRow("read, cancelled") << true << false;
    QTest::newRow("read, deleted") << true << true;
}

void tst_PictureLoader::nothingComesAfterwards()
{
    QFETCH(bool, isRead);
    QFETCH(bool, isDeleted);
    std::unique_ptr<ThreadHolder> holder(isRead ? nullptr : new ThreadHolder);
    std::unique_ptr<PictureLoader> loader(new PictureLoader);
    QSignalSpy loaded(loader.get(), SIGNAL(loaded(QImage, QString)));
    loader->load(sample("ColourChart.png"));
    if (isRead)
        BackgroundJob::waitForAll();
    if (isDeleted)
        loader.reset();
    else
        loader->cancel();
    holder.reset();
    QCoreApplication::processEvents();
    QCOMPARE(int(loaded.size()), 0);
}

void tst_PictureLoader::longWorkIsCancelledByTheUser()
{
    BackgroundJob* const job = new EndlessJob;
    QSignalSpy finished(job, SIGNAL(finished()));
    const QPointer<BackgroundJob> watched(job);
    job->start();
    QWidget* const dialog = m_manager->progressWidget();
    WAIT_FOR(dialog->isVisible() && dialog->findChild<QPushButton*>());
    QTest::mouseClick(dialog->findChild<QPushButton*>(), Qt::LeftButton);
    WAIT_FOR(finished.size() == 1 && !watched);
    WAIT_FOR(m_manager->tasksCount() == 0);
}

QTEST_MAIN(tst_PictureLoader)
#include "tst_PictureLoader.moc"
