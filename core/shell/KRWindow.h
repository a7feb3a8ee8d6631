#pragma once

#include <QAbstractListModel>
#include <QObject>
#include <memory>
#include <vector>

class KRBaseController;
class KRDialog;
class KRNavigationController;
class KRSideMenu;

/// A list of QObjects for views; the roles are "item" and "leaving". What is leaving keeps its row while it
/// is seen to go, but is not counted.
class ObjectListModel : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    using QAbstractListModel::QAbstractListModel;
    enum Role { ItemRole = Qt::UserRole, LeavingRole };

    int count() const { return static_cast<int>(staying().size()); }
    QObject *at(int place) const { return staying().at(place); }
    /// Null when there is none.
    QObject *last() const { return count() > 0 ? staying().constLast() : nullptr; }
    bool contains(const QObject *item) const { return staying().contains(item); }
    bool isLeaving(const QObject *item) const { return items.contains(item) && !contains(item); }
    void append(QObject *item);
    void leave(QObject *item);
    void remove(QObject *item);
    /// Everything that was in it, the last first.
    QList<QObject *> takeAll();
    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();

private:
    QList<QObject *> staying() const;

    QList<QObject *> items;
    QList<QObject *> going;
};

/// The main window: its root (the guide or the side menu), the stacks presented over it, the dialogs over
/// those. Owns them all. Banners and the waiting indicator are `OverlayHost`'s.
///
/// One thing is in front: the stack presented last, else the side menu's content, else the guide. What is in
/// front has appeared, all else has disappeared; when that changes the old one disappears before the new one
/// appears. Dialogs cover without a change of either.
class KRWindow : public QObject {
    Q_OBJECT
    /// A KRBaseController (the guide) or a KRSideMenu.
    Q_PROPERTY(QObject *root READ root NOTIFY rootChanged)
    Q_PROPERTY(bool visible READ isVisible NOTIFY visibleChanged)
    Q_PROPERTY(ObjectListModel *presented READ presented CONSTANT)
    Q_PROPERTY(ObjectListModel *dialogs READ dialogs CONSTANT)
    /// Whether somebody draws this window and tells of the end of a motion with `transitionFinished`.
    Q_PROPERTY(bool animated MEMBER animated)
public:
    explicit KRWindow(QObject *parent = nullptr);
    ~KRWindow() override;

    void makeKeyAndVisible();
    bool isVisible() const { return visible; }

    QObject *root() const { return rootObject; }
    ObjectListModel *presented() { return &presentedStacks; }
    ObjectListModel *dialogs() { return &shownDialogs; }

    /// Replaces the root; what was presented over the old one goes with it.
    void setRoot(std::unique_ptr<KRBaseController> root);
    void setRoot(std::unique_ptr<KRSideMenu> root);
    KRSideMenu *sideMenu() const;

    /// Presents over whatever is on screen; the window owns the stack until `dismiss`.
    KRNavigationController *present(std::unique_ptr<KRNavigationController> stack);
    KRNavigationController *present(std::unique_ptr<KRBaseController> screen);
    /// Takes `stack` away, also from below another one; does nothing when it is not presented. Only the one
    /// on top is seen leaving.
    void dismiss(KRNavigationController *stack);
    /// A stack or a dialog has been seen to go.
    Q_INVOKABLE void transitionFinished(QObject *gone);

    /// The dialog lives until it is removed.
    void show(std::unique_ptr<KRDialog> dialog);
    /// As `dismiss`, wherever the dialog lies.
    void remove(KRDialog *dialog);

    /// The stack on top: the last presented, else the content of the side menu, else null.
    KRNavigationController *topStack() const;
    /// Takes the focus from the field being edited and closes the keyboard.
    void endEditing() { Q_EMIT editingEnded(); }

    /// Brings to light what is in front now. Called by the side menu when its content changes and by a stack
    /// when it has told its screens of a move.
    void updateVisibility();

Q_SIGNALS:
    void rootChanged();
    void visibleChanged();
    void editingEnded();

private:
    void takeAway(QObject *item, ObjectListModel &from, bool seen);
    void replaceRoot(QObject *root);
    void showRoot();
    QObject *front() const;

    ObjectListModel presentedStacks;
    ObjectListModel shownDialogs;
    QObject *rootObject = nullptr;
    QObject *appeared = nullptr;
    std::vector<QObject *> outgoing;
    bool visible = false;
    bool animated = false;
    bool updating = false;
};
