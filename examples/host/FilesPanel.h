#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

class QFileDialog;
class QListWidgetItem;

namespace Norvane { namespace UI {
class DropAcceptingListWidget;
class FilenameField;
}} // namespace Norvane::UI

namespace Norvane { namespace Host {

/// A panel that lists the pictures of a folder. The name of the folder is typed, chosen, or dropped; the name
/// of a picture asks for that picture. Pictures dropped from elsewhere are listed too and asked for at once.
/// The layout state is the name.
class FilesPanel : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString layoutState READ layoutState WRITE setLayoutState)
public:
    /// \a number tells several panels apart.
    explicit FilesPanel(int number, QWidget* parent = nullptr);

    QString layoutState() const;
    void setLayoutState(const QString& text);

Q_SIGNALS:
    void pictureChosen(const QString& path);
    void picturesDropped(const QStringList& paths);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void prepareDialog(QFileDialog* dialog);
    void openNamed();
    void openItem(QListWidgetItem* item);
    void takeDropped(const QStringList& paths);

private:
    void listFolder(const QString& folder);
    void addFile(const QString& path);
    bool hasFile(const QString& path) const;

    UI::FilenameField* m_field;
    UI::DropAcceptingListWidget* m_list;
    /// What was opened last: leaving the field reports its name once more.
    QString m_openedName;
};

}} // namespace Norvane::Host
