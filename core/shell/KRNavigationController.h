#pragma once

#include <QAbstractListModel>
#include <memory>
#include <vector>

class KRBaseController;
class KRWindow;

/// A stack of screens and the list that views draw it from: one row a screen, the root first, with the roles
/// "controller" and "leaving". A popped screen keeps its row, leaving, until `transitionFinished`; without a
/// view (`animated` false), or while the stack is covered, it goes at once. Owns its screens.
///
/// A move changes the list first and then tells the screens: the old one will disappear, the new one will
/// appear, the old one did disappear, the new one did appear. While the stack is covered nobody is told;
/// whoever is on top when it comes to light appears then. A screen may move the stack while it is being told:
/// it is told to the end before the next move is.
class KRNavigationController : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int depth READ depth NOTIFY depthChanged)
    Q_PROPERTY(bool animated MEMBER animated)
public:
    enum Role { ControllerRole = Qt::UserRole, LeavingRole };

    /// The root is loaded when the stack comes to a window.
    explicit KRNavigationController(std::unique_ptr<KRBaseController> root);
    ~KRNavigationController() override;

    /// Loads `screen` and puts it on top.
    void push(std::unique_ptr<KRBaseController> screen);
    void pop();
    /// Does nothing when `screen` is not on the stack.
    void popTo(KRBaseController *screen);
    void popToRoot();
    /// The stack's screens without those that are leaving, the root first.
    int depth() const;
    KRBaseController *at(int index) const;
    KRBaseController *root() const { return at(0); }
    KRBaseController *top() const;
    bool contains(const KRBaseController *screen) const;

    KRWindow *window() const { return hostWindow; }
    /// Called by what shows the stack.
    void attach(KRWindow *window);
    void setVisible(bool visible);
    bool isVisible() const { return visible; }
    /// Whether a move is being told; what covers the stack meanwhile waits for its end.
    bool isTelling() const { return telling; }
    /// Takes this stack off the window when it is presented on it.
    void dismiss();

    Q_INVOKABLE void transitionFinished(QObject *screen);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void depthChanged();

private:
    struct Entry {
        KRBaseController *screen = nullptr;
        bool leaving = false;
    };
    void append(KRBaseController *screen);
    void tellScreens();
    int rowOf(const QObject *screen) const;
    void leave(int row);
    void removeRow(int row);
    void removeLeaving();

    std::vector<Entry> entries;
    KRWindow *hostWindow = nullptr;
    KRBaseController *appeared = nullptr;
    bool visible = false;
    bool animated = false;
    bool telling = false;
};
