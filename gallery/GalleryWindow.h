#ifndef PELORIN_GALLERY_GALLERYWINDOW_H
#define PELORIN_GALLERY_GALLERYWINDOW_H

#include <Pelorin/TavrinMainWindow>

#include <QHash>

class QListWidget;
class QTabWidget;
struct Page;

/// The reference: every widget in every state. The topics stand in a dock, and the page of a topic
/// opens in a tab when it is first chosen.
class GalleryWindow : public TavrinMainWindow
{
    Q_OBJECT

public:
    explicit GalleryWindow(QWidget *parent = nullptr);
    ~GalleryWindow() override;

    /// Opens the page called \a name, or comes back to it; false if there is none.
    bool showPage(const QString &name);

private:
    QWidget *makeSidebar();
    QWidget *makePage(const Page &page);
    void showRow(int row);
    void followTab(int index);

    QListWidget *m_topics = nullptr;
    QTabWidget *m_tabs = nullptr;
    QHash<int, QWidget *> m_built; ///< by row of the topics
};

#endif
