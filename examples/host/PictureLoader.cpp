#include "PictureLoader.h"

#include "BackgroundJob.h"
#include "Pictures.h"

namespace Norvane { namespace Host {

class PictureReading : public BackgroundJob
{
public:
    PictureReading(const QString& path, const QSize& largest)
        : BackgroundJob(PictureLoader::tr("Loading %1").arg(Pictures::nameOf(path)))
        , m_path(path)
        , m_largest(largest)
    {
    }

    /// For the time after finished(). What is read shrunk has no levels.
    QImage picture;
    PictureLevels levels;
    QString problem;

protected:
    void work() override
    {
        picture = Pictures::read(m_path, m_largest, &problem,
                                 [this](qint64 done, qint64 all) { return goOn(done, all); });
        if (isCancelled()) {
            // Some decoders make the best of half a file.
            picture = QImage();
            problem = PictureLoader::tr("Loading was cancelled.");
        } else if (!m_largest.isValid()) {
            levels = picture;
        }
    }

private:
    const QString m_path;
    const QSize m_largest;
};

PictureLoader::PictureLoader(QObject* parent)
    : QObject(parent)
{
}

PictureLoader::~PictureLoader()
{
    cancel();
}

void PictureLoader::load(const QString& path, const QSize& largest)
{
    cancel();
    m_reading = new PictureReading(path, largest);
    connect(m_reading, SIGNAL(finished()), this, SLOT(report()));
    m_reading->start(largest.isValid() ? 0 : 1);
}

void PictureLoader::cancel()
{
    m_levels = PictureLevels();
    if (!m_reading)
        return;
    disconnect(m_reading, nullptr, this, nullptr);
    m_reading->cancel();
    m_reading = nullptr;
}

const PictureLevels& PictureLoader::levels() const
{
    return m_levels;
}

bool PictureLoader::isLoading() const
{
    return m_reading;
}

void PictureLoader::report()
{
    const QImage picture = m_reading->picture;
    const QString problem = m_reading->problem;
    m_levels = m_reading->levels;
    m_reading = nullptr;
    Q_EMIT loaded(picture, problem);
}

}} // namespace Norvane::Host
