#include <ui/widgets/DropAcceptingListWidget.h>

#include <tests/support/Waiting.h>

#include <QApplication>
#include <QSignalSpy>

using namespace Norvane::UI;

class tst_DropAcceptingListWidget : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void dropIsReported_data();
    void dropIsReported();
    void moveLeavesFilesWithSender();
};

namespace {

const int kHostsBit = 4;

/// What the sender of \a event is told, through Qt's own search for a widget that takes it: Qt::IgnoreAction
/// if nothing was taken.
Qt::DropAction answer(QAbstractScrollArea* list, QDropEvent&& event)
{
    event.setAccepted(false);
    QApplication::sendEvent(list->viewport(), &event);
    return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
}

bool takesDrag(QAbstractScrollArea* list, const QMimeData* data, Qt::DropActions actions)
{
    const QPoint at(5, 5);
    return answer(list, QDragEnterEvent(at, actions, data, Qt::LeftButton, Qt::NoModifier)) &&
           answer(list, QDragMoveEvent(at, actions, data, Qt::LeftButton, Qt::NoModifier));
}

Qt::DropAction drop(QAbstractScrollArea* list, const QMimeData* data, Qt::DropActions actions)
{
    return answer(list, QDropEvent(QPoint(6, 6), actions, data, Qt::LeftButton, Qt::ShiftModifier));
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
    QCOMPARE(takesDrag(&list, &data, Qt::CopyAction), entered);
    QCOMPARE(drop(&list, &data, Qt::CopyAction), reported ? Qt::CopyAction : Qt::IgnoreAction);
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
    data.setUrls(QList<QUrl>() << QUrl::fromLocalFile(QLatin1String("/a.png")));
    QVERIFY(takesDrag(&list, &data, Qt::MoveAction));
    QCOMPARE(drop(&list, &data, Qt::MoveAction), Qt::IgnoreAction);
    QVERIFY(takesDrag(&list, &data, Qt::MoveAction | Qt::CopyAction));
    QCOMPARE(drop(&list, &data, Qt::MoveAction | Qt::CopyAction), Qt::CopyAction);
    QCOMPARE(int(spy.size()), 2);
}

QTEST_MAIN(tst_DropAcceptingListWidget)
#include "tst_DropAcceptingListWidget.moc"
