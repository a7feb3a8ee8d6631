#pragma once

#include <QAbstractListModel>

#include <memory>
#include <vector>

class KRBaseController;
class KRWindow;

/// A stack of screens and the list that views draw it from: one row a screen, the root first, with the roles
/// "controller" and "leaving". A popped screen keeps its row, leaving, until `transitionFinished`; without a view
/// (`animated` false) it goes at once. Owns its screens.
class KRNavigationController : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int depth READ depth NOTIFY depthChanged)
    Q_PROPERTY(bool animated MEMBER animated)
public:
    enum Role { ControllerRole = Qt::UserRole, LeavingRole };

    explicit KRNavigationController(std::unique_ptr<KRBaseController> root);
    ~KRNavigationController() override;

    /// Loads and shows `screen`; its appearance calls wait while the stack itself is covered.
    void push(std::unique_ptr<KRBaseController> screen);
    void pop();
    void popTo(KRBaseController *screen);
    void popToRoot();
    /// The stack's screens without those that are leaving, the root first.
    int depth() const;
    KRBaseController *at(int index) const;
    KRBaseController *root() const { return at(0); }
    KRBaseController *top() const;

    KRWindow *window() const { return hostWindow; }
    /// Called by what shows the stack.
    void attach(KRWindow *window) { hostWindow = window; }
    void setVisible(bool visible);
    bool isVisible() const { return visible; }
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
    int rowOf(const QObject *screen) const;
    void leave(KRBaseController *screen);
    void removeRow(int row);

    std::vector<Entry> entries;
    KRWindow *hostWindow = nullptr;
    bool visible = false;
    bool animated = false;
};
