#pragma once

#include "core/shell/KRBaseController.h"

#include <QStringList>

class TZGuideControllerDelegate {
public:
    virtual void clickRemoveGuideViewBtn() = 0;

protected:
    ~TZGuideControllerDelegate() = default;
};

/// The four pages that a new build is introduced with. The delegate outlives this screen.
class TZGuideController : public KRBaseController {
    Q_OBJECT
    /// The names of the pictures, one a page.
    Q_PROPERTY(QStringList pages READ pages NOTIFY screenHeightChanged)
    /// The page that is shown, from 0; values outside the pages are drawn to the nearest.
    Q_PROPERTY(int page READ page WRITE setPage NOTIFY pageChanged)
    Q_PROPERTY(bool lastPage READ isLastPage NOTIFY pageChanged)
    /// "第2页，共4页", for those who do not see the dots.
    Q_PROPERTY(QString pageText READ pageText NOTIFY pageChanged)
    /// In points; a screen of 480 has pictures of its own.
    Q_PROPERTY(int screenHeight MEMBER height NOTIFY screenHeightChanged)
public:
    explicit TZGuideController(TZGuideControllerDelegate &guideDelegate) : delegate(&guideDelegate) {}

    QStringList pages() const;
    int page() const { return current; }
    void setPage(int page);
    bool isLastPage() const;
    QString pageText() const;

    Q_INVOKABLE void toBeforePage() { setPage(current - 1); }
    Q_INVOKABLE void toNextPage() { setPage(current + 1); }
    /// Leaves the guide, once.
    Q_INVOKABLE void removeGuideView();

Q_SIGNALS:
    void pageChanged();
    void screenHeightChanged();

private:
    TZGuideControllerDelegate *delegate;
    int current = 0;
    int height = 0;
};
