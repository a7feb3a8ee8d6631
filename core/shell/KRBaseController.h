#pragma once

#include <QObject>
#include <QString>

class KRNavigationController;
class KRWindow;

/// The base of plain screens: its bar, its place in a navigation stack, what every screen does when it comes
/// and goes. Belongs to the stack it was pushed on; after being popped it lives only until its view is gone.
class KRBaseController : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)
    /// The name of a picture shown instead of the title.
    Q_PROPERTY(QString titleImage READ titleImage NOTIFY barChanged)
    Q_PROPERTY(QString leftItemTitle READ leftItemTitle NOTIFY barChanged)
    Q_PROPERTY(QString leftItemImage READ leftItemImage NOTIFY barChanged)
    Q_PROPERTY(QString rightItemTitle READ rightItemTitle NOTIFY barChanged)
    Q_PROPERTY(QString rightItemImage READ rightItemImage NOTIFY barChanged)
    Q_PROPERTY(bool showBackButton READ showBackButton WRITE setShowBackButton NOTIFY barChanged)
    Q_PROPERTY(bool isNeedGesture READ isNeedGesture WRITE setIsNeedGesture NOTIFY barChanged)
    /// False while what is going on must be seen to its end on this screen.
    Q_PROPERTY(bool canBeLeft READ canBeLeft NOTIFY barChanged)
    Q_PROPERTY(Background background READ background NOTIFY backgroundChanged)
public:
    enum class Background { Blue, Gray };
    Q_ENUM(Background)

    explicit KRBaseController(QObject *parent = nullptr);
    ~KRBaseController() override;

    QString title() const { return titleText; }
    void setTitle(const QString &title);
    QString titleImage() const { return titleImageName; }
    void setTitleImage(const QString &image);
    QString leftItemTitle() const { return leftTitle; }
    QString leftItemImage() const { return leftImage; }
    QString rightItemTitle() const { return rightTitle; }
    QString rightItemImage() const { return rightImage; }
    bool showBackButton() const { return backButton; }
    /// Puts the back button in the left slot, in place of an item made before, or empties the slot.
    void setShowBackButton(bool show);
    bool isNeedGesture() const { return gesture; }
    void setIsNeedGesture(bool need);
    virtual bool canBeLeft() const { return true; }
    Background background() const { return backgroundColour; }

    /// A left item takes the back button's place.
    void createNavLeftItemWithTitle(const QString &title, const QString &andImage,
                                    const QString &andRightWithTitle, const QString &andRightImage);

    /// Called by what shows the screen, in this order: `viewDidLoad` once, before the screen is first seen
    /// and with its `window()` known; the others in pairs, `will` and `did`, appearing and disappearing in
    /// turn. Overrides call the base first.
    virtual void viewDidLoad();
    virtual void viewWillAppear();
    virtual void viewDidAppear() {}
    virtual void viewWillDisappear();
    virtual void viewDidDisappear() {}

    /// Both pop the stack while this screen is on top of it and can be left: a second tap on a bar that is
    /// already leaving does nothing.
    Q_INVOKABLE virtual void backButtonClicked();
    Q_INVOKABLE virtual void leftItemClick();
    Q_INVOKABLE virtual void rightItemClick() {}
    /// Ends editing, so that dragging a list closes the keyboard.
    Q_INVOKABLE void scrollViewWillBeginDragging();

    /// Null before the screen was pushed.
    KRNavigationController *navigationController() const { return navigation; }
    KRWindow *window() const;
    /// False once another screen has come on top of its stack: a second tap may come while that slides in.
    bool isOnTop() const;
    /// False also while another stack is presented over this screen's.
    bool isInFront() const;
    /// Called by what shows the screen outside a stack: the guide, the left menu.
    void attach(KRWindow *window) { hostWindow = window; }
    /// Runs `viewDidLoad` unless it has run.
    void loadViewIfNeeded();

Q_SIGNALS:
    void titleChanged();
    void barChanged();
    /// What is being edited on this screen no longer is.
    void editingEnded();
    void backgroundChanged();

protected:
    void changeNavStyle();
    void changeBlueBgColor();
    void changeGrayBgColor();
    void showWaitingView();
    void hidenWaitngView();
    void endEditing();

private:
    friend class KRNavigationController;
    void popFromStack();

    KRNavigationController *navigation = nullptr;
    KRWindow *hostWindow = nullptr;
    QString titleText;
    QString titleImageName;
    QString leftTitle;
    QString leftImage;
    QString rightTitle;
    QString rightImage;
    bool backButton = false;
    bool gesture = false;
    bool loaded = false;
    Background backgroundColour = Background::Blue;
};
