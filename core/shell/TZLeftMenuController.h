#pragma once

#include "core/shell/KRBaseController.h"
#include "core/util/RowListModel.h"

class Router;

/// A row of the left menu; `iconView` is the name of its picture.
struct TZLeftMenuCell {
    Q_GADGET
    Q_PROPERTY(QString topLabel MEMBER topLabel)
    Q_PROPERTY(QString bottomLabel MEMBER bottomLabel)
    Q_PROPERTY(QString iconView MEMBER iconView)
public:
    QString topLabel;
    QString bottomLabel;
    QString iconView;
};

/// The menu behind the left edge: home, my account, partner. The last two ask for a sign-in first.
class TZLeftMenuController : public KRBaseController {
    Q_OBJECT
    Q_PROPERTY(GadgetListModel *rows READ rows CONSTANT)
    /// The row whose page is the content's root; -1 for none of them.
    Q_PROPERTY(int currentRow READ currentRow NOTIFY currentRowChanged)
public:
    explicit TZLeftMenuController(Router &router);

    RowListModel<TZLeftMenuCell> *rows() { return &cells; }
    int currentRow() const;
    Q_INVOKABLE void didSelectRow(int row);

    void viewDidLoad() override;

Q_SIGNALS:
    void currentRowChanged();

private:
    Router &router;
    RowListModel<TZLeftMenuCell> cells;
};
