#pragma once

#include <QObject>
#include <memory>

class KRBaseController;
class KRNavigationController;
class KRWindow;

class KRSideMenuDelegate {
public:
    /// Before the menu opens.
    virtual void willShowMenu() = 0;

protected:
    ~KRSideMenuDelegate() = default;
};

/// The main frame: one navigation stack as content, a menu behind its left edge. Owns both.
class KRSideMenu : public QObject {
    Q_OBJECT
    Q_PROPERTY(KRNavigationController *content READ content NOTIFY contentChanged)
    Q_PROPERTY(KRBaseController *leftMenu READ leftMenu CONSTANT)
    Q_PROPERTY(bool open READ isOpen NOTIFY openChanged)
public:
    KRSideMenu(std::unique_ptr<KRNavigationController> contentStack, std::unique_ptr<KRBaseController> menu);
    ~KRSideMenu() override;

    KRNavigationController *content() const { return contentStack; }
    KRBaseController *leftMenu() const { return menu; }
    bool isOpen() const { return opened; }

    void setContent(std::unique_ptr<KRNavigationController> stack);
    Q_INVOKABLE void presentLeftMenu();
    Q_INVOKABLE void hideMenu();
    void attach(KRWindow *window);
    /// The delegate lives for as long as the menu may be opened.
    void setDelegate(KRSideMenuDelegate &menuDelegate) { delegate = &menuDelegate; }

Q_SIGNALS:
    void contentChanged();
    void openChanged();

private:
    void setOpen(bool open);

    KRNavigationController *contentStack = nullptr;
    KRBaseController *menu = nullptr;
    KRWindow *hostWindow = nullptr;
    KRSideMenuDelegate *delegate = nullptr;
    bool opened = false;
};
