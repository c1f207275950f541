#ifndef PELORIN_GALLERY_GALLERYWINDOW_H
#define PELORIN_GALLERY_GALLERYWINDOW_H

#include <QHash>
#include <QWidget>

class QListWidget;
class QStackedWidget;
struct Page;

/// The window of the gallery: the topics at the left, the chosen page beside them. A page is built
/// when it is first shown.
class GalleryWindow : public QWidget
{
    Q_OBJECT

public:
    explicit GalleryWindow(QWidget *parent = nullptr);

    /// Shows the page called \a name and chooses its topic; false if there is none.
    bool showPage(const QString &name);

private:
    QWidget *makeSidebar();
    QWidget *makePage(const Page &page);
    void showRow(int row);

    QListWidget *m_topics = nullptr;
    QStackedWidget *m_stack = nullptr;
    QHash<int, QWidget *> m_built;
};

#endif
