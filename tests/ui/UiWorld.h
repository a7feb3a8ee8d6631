#pragma once

#include "core/shell/KRNavigationController.h"
#include "core/shell/KRWindow.h"
#include "core/shell/TZBaseTableViewController.h"
#include "core/shell/TZGuideController.h"
#include "core/shell/TZTradePwdAlertView.h"
#include "tests/support/TestPlatform.h"

#include <QQuickItem>

/// A list screen that counts what it is asked for.
class CountingList : public TZBaseTableViewController {
    Q_OBJECT
    Q_PROPERTY(int refreshes MEMBER refreshes)
    Q_PROPERTY(int loads MEMBER loads)
public:
    Q_INVOKABLE void finish() { endRefreshing(); }
    Q_INVOKABLE void cover() { viewWillDisappear(); }

protected:
    void refreshData() override { ++refreshes; }
    void loadMoreData() override { ++loads; }

private:
    int refreshes = 0;
    int loads = 0;
};

/// What the tests of views act on: the real navigation model and list screens, over a platform of fakes.
class UiWorld : public QObject,
                public PlatformTest,
                public TZTradePwdAlertDelegate,
                public TZGuideControllerDelegate {
    Q_OBJECT
    Q_PROPERTY(KRWindow *window READ window CONSTANT)
    Q_PROPERTY(OverlayHost *overlays READ overlayHost CONSTANT)
public:
    UiWorld();

    KRWindow *window() { return &theWindow; }
    OverlayHost *overlayHost() { return &overlays; }

    /// A stack of one screen, owned by the caller's engine.
    Q_INVOKABLE KRNavigationController *makeStack();
    Q_INVOKABLE void push(KRNavigationController *stack, const QString &title, bool gesture);
    Q_INVOKABLE CountingList *makeList();
    Q_INVOKABLE TZGuideController *makeGuide();
    /// A stack of one page over the window; its bar closes it.
    Q_INVOKABLE void present(const QString &title);
    Q_INVOKABLE void showQuestion(const QString &text);
    Q_INVOKABLE TZTradePwdAlertView *showPrompt();
    void checkTradePwd(const QString &password) override { given = password; }
    /// The buttons that were pressed, or the password that was handed over.
    Q_INVOKABLE QString answers() const { return given; }
    Q_INVOKABLE void wait(bool waiting);
    Q_INVOKABLE void passSecond() { runLoop.advance(std::chrono::seconds(1)); }
    /// Lets the indicator show for so long that there must be a way out.
    Q_INVOKABLE void waitLong();
    /// What a screen reader is told of an item: "role", "name", "description", "text" and the states that
    /// hold.
    Q_INVOKABLE QVariantMap spoken(QObject *item) const;
    /// Everything that was told of `item` and what it holds, changes of texts included, since it was last
    /// asked.
    Q_INVOKABLE QString heard(QObject *item);
    /// Has assistive technology press an item.
    Q_INVOKABLE void pressSpoken(QObject *item) const;
    /// The key is held: it comes once more.
    Q_INVOKABLE void repeatKey(QQuickItem *item, int key) const;
    /// The places of DisplaySettings' choices.
    Q_INVOKABLE void display(int palette, int trendColours, int textSize);

private:
    void TestBody() override {}
    void clickRemoveGuideViewBtn() override {}

    KRWindow theWindow;
    QString given;
};
