#include <ui/widgets/DropAcceptingListWidget.h>

#include <tests/support/Waiting.h>

#include <QApplication>
#include <QPointer>
#include <QSignalSpy>

using namespace Norvane::UI;

class tst_DropAcceptingListWidget : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void dropIsReported_data();
    void dropIsReported();
    void moveLeavesFilesWithSender();
    void listIsDeletedUnderDrag();
};

namespace {

const int kHostsBit = 4;

/// A drag of \a data over a list, through Qt's own search for a widget that takes it.
class Drag
{
public:
    Drag(QWidget* list, const QMimeData* data, Qt::DropActions actions = Qt::CopyAction)
        : m_target(qobject_cast<QAbstractScrollArea*>(list)->viewport())
        , m_data(data)
        , m_actions(actions)
    {
    }

    bool enter()
    {
        QDragEnterEvent event(QPoint(5, 5), m_actions, m_data, Qt::LeftButton, Qt::NoModifier);
        event.setAccepted(false);
        QApplication::sendEvent(m_target, &event);
        return event.isAccepted();
    }

    bool move()
    {
        QDragMoveEvent event(QPoint(6, 6), m_actions, m_data, Qt::LeftButton, Qt::NoModifier);
        event.setAccepted(false);
        QApplication::sendEvent(m_target, &event);
        return event.isAccepted();
    }

    /// What the sender is told: Qt::IgnoreAction if nothing was taken.
    Qt::DropAction drop()
    {
        QDropEvent event(QPoint(6, 6), m_actions, m_data, Qt::LeftButton, Qt::ShiftModifier);
        event.setAccepted(false);
        if (m_target)
            QApplication::sendEvent(m_target, &event);
        return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    }

private:
    const QPointer<QWidget> m_target;
    const QMimeData* m_data;
    const Qt::DropActions m_actions;
};

QMimeData* files(QMimeData* data)
{
    data->setUrls(QList<QUrl>() << QUrl::fromLocalFile(QLatin1String("/b c.png"))
                                << QUrl::fromLocalFile(QLatin1String("/a.png")));
    return data;
}

} // namespace

void tst_DropAcceptingListWidget::dropIsReported_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<QStringList>("urls");
    QTest::addColumn<bool>("entered");
    QTest::addColumn<bool>("reported");
    QTest::addColumn<QStringList>("paths");
    const QStringList two = QStringList()
                            << QLatin1String("file:///b%20c.png") << QLatin1String("file:///a.png");
    const QStringList paths = QStringList() << QLatin1String("/b c.png") << QLatin1String("/a.png");
    const QStringList web = QStringList(QLatin1String("https://example.org/a.png"));
    const QStringList none;
    QTest::newRow("files") << int(AcceptUrls) << two << true << true << paths;
    QTest::newRow("files, another bit as well") << (AcceptUrls | kHostsBit) << two << true << true << paths;
    QTest::newRow("files, only another bit") << kHostsBit << two << true << false << none;
    QTest::newRow("files, nothing accepted") << int(AcceptNothing) << two << false << false << none;
    QTest::newRow("web page") << int(AcceptUrls) << web << true << true << QStringList(QString());
    QTest::newRow("text") << int(AcceptUrls) << none << true << false << none;
}

void tst_DropAcceptingListWidget::dropIsReported()
{
    QFETCH(int, flags);
    QFETCH(QStringList, urls);
    QFETCH(bool, entered);
    QFETCH(bool, reported);
    DropAcceptingListWidget list(nullptr);
    list.addItem(QLatin1String("an item"));
    list.setAcceptsDropsFlags(AcceptedDropFlag(flags));
    QCOMPARE(int(list.acceptsDropsFlags()), flags);
    QCOMPARE(list.acceptDrops(), flags != 0);
    list.show();

    QMimeData data;
    data.setText(QLatin1String("plain text"));
    QList<QUrl> all;
    for (const QString& url : urls)
        all.append(QUrl::fromEncoded(url.toLatin1()));
    if (!all.isEmpty())
        data.setUrls(all);
    QSignalSpy spy(&list, SIGNAL(droppedUrls(QStringList)));
    Drag drag(&list, &data);
    QCOMPARE(drag.enter(), entered);
    QCOMPARE(drag.move(), entered);
    QCOMPARE(drag.drop(), reported ? Qt::CopyAction : Qt::IgnoreAction);
    QCOMPARE(int(spy.size()), reported ? 1 : 0);
    if (reported)
        QTEST(spy.first().first().toStringList(), "paths");
    QCOMPARE(list.count(), 1);
}

// A sender that is told that its files were moved deletes them.
void tst_DropAcceptingListWidget::moveLeavesFilesWithSender()
{
    DropAcceptingListWidget list(nullptr);
    list.setAcceptsDropsFlags(AcceptUrls);
    list.show();
    QMimeData data;
    QSignalSpy spy(&list, SIGNAL(droppedUrls(QStringList)));
    Drag onlyMoving(&list, files(&data), Qt::MoveAction);
    QVERIFY(onlyMoving.enter());
    QCOMPARE(onlyMoving.drop(), Qt::IgnoreAction);
    Drag moving(&list, &data, Qt::MoveAction | Qt::CopyAction);
    QVERIFY(moving.enter());
    QCOMPARE(moving.drop(), Qt::CopyAction);
    QCOMPARE(int(spy.size()), 2);
}

void tst_DropAcceptingListWidget::listIsDeletedUnderDrag()
{
    for (const bool byItsDrop : {false, true}) {
        QPointer<DropAcceptingListWidget> list = new DropAcceptingListWidget(nullptr);
        list->setAcceptsDropsFlags(AcceptUrls);
        list->show();
        if (byItsDrop)
            connect(list, SIGNAL(droppedUrls(QStringList)), list, SLOT(deleteLater()));
        QMimeData data;
        Drag drag(list, files(&data));
        QVERIFY(drag.enter());
        if (!byItsDrop)
            delete list;
        QCOMPARE(drag.drop(), byItsDrop ? Qt::CopyAction : Qt::IgnoreAction);
        WAIT_FOR(!list);
    }
}

QTEST_MAIN(tst_DropAcceptingListWidget)
#include "tst_DropAcceptingListWidget.moc"
