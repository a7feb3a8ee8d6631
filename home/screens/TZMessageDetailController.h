#pragma once

#include "core/shell/KRBaseController.h"
#include "core/shell/Router.h"
#include "home/api/TZMessageModel.h"

/// One message; showing it marks it read.
class TZMessageDetailController : public KRBaseController {
    Q_OBJECT
    Q_PROPERTY(QString messageTitle READ messageTitle CONSTANT)
    Q_PROPERTY(QString time READ time CONSTANT)
    Q_PROPERTY(QString content READ content CONSTANT)
    Q_PROPERTY(QString homeTitle READ homeTitle CONSTANT)
    Q_PROPERTY(bool shareable READ shareable CONSTANT)
public:
    /// `fromController` is "remote" for a message that was pushed: then the screen is presented and closes
    /// instead of going back.
    TZMessageDetailController(Router &router, TZMessageModel model, QString fromController);

    QString messageTitle() const { return model.title; }
    QString time() const;
    QString content() const { return model.content; }
    QString homeTitle() const { return QStringLiteral("返回首页"); }
    bool shareable() const;

    void viewDidLoad() override;
    void rightItemClick() override;
    /// Esc: where there is no back button, the close button.
    void backButtonClicked() override;
    Q_INVOKABLE void backToHome();
    Q_INVOKABLE void shareBtnClick();

private:
    bool isRemote() const { return fromController == u"remote"; }
    void markMessageRead();

    Router &router;
    const TZMessageModel model;
    const QString fromController;
};
