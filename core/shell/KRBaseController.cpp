#include "core/shell/KRBaseController.h"

#include "core/platform/Analytics.h"
#include "core/platform/Platform.h"
#include "core/shell/KRNavigationController.h"
#include "core/shell/KRWindow.h"
#include "core/util/Service.h"

namespace {
// Kept on purpose: every screen logs under the same name.
const QString pageName = QStringLiteral("PageOne");
} // namespace

KRBaseController::KRBaseController(QObject *parent) : QObject(parent) {}

KRBaseController::~KRBaseController() = default;

void KRBaseController::setTitle(const QString &title)
{
    if (titleText == title)
        return;
    titleText = title;
    Q_EMIT titleChanged();
}

void KRBaseController::setTitleImage(const QString &image)
{
    titleImageName = image;
    Q_EMIT barChanged();
}

void KRBaseController::setShowBackButton(bool show)
{
    backButton = show;
    leftTitle.clear();
    leftImage.clear();
    Q_EMIT barChanged();
}

void KRBaseController::setIsNeedGesture(bool need)
{
    gesture = need;
    Q_EMIT barChanged();
}

void KRBaseController::createNavLeftItemWithTitle(const QString &title, const QString &andImage,
                                                  const QString &andRightWithTitle,
                                                  const QString &andRightImage)
{
    if (!title.isEmpty() || !andImage.isEmpty())
        backButton = false;
    leftTitle = title;
    leftImage = andImage;
    rightTitle = andRightWithTitle;
    rightImage = andRightImage;
    Q_EMIT barChanged();
}

void KRBaseController::loadViewIfNeeded()
{
    if (loaded)
        return;
    loaded = true;
    viewDidLoad();
}

void KRBaseController::viewDidLoad()
{
    setIsNeedGesture(true);
}

void KRBaseController::viewWillAppear()
{
    Platform::current().analytics.beginLogPageView(pageName);
    changeNavStyle();
}

void KRBaseController::viewWillDisappear()
{
    Q_EMIT editingEnded();
    Platform::current().analytics.endLogPageView(pageName);
    hidenWaitngView();
    Service::hideAlertView();
}

void KRBaseController::backButtonClicked()
{
    popFromStack();
}

void KRBaseController::leftItemClick()
{
    popFromStack();
}

void KRBaseController::popFromStack()
{
    if (isOnTop() && canBeLeft())
        navigation->pop();
}

void KRBaseController::scrollViewWillBeginDragging()
{
    endEditing();
}

KRWindow *KRBaseController::window() const
{
    return navigation ? navigation->window() : hostWindow;
}

void KRBaseController::changeNavStyle()
{
    Q_EMIT barChanged();
}

void KRBaseController::changeBlueBgColor()
{
    backgroundColour = Background::Blue;
    Q_EMIT backgroundChanged();
}

void KRBaseController::changeGrayBgColor()
{
    backgroundColour = Background::Gray;
    Q_EMIT backgroundChanged();
}

void KRBaseController::showWaitingView()
{
    Service::showWaitingProgressView();
}

void KRBaseController::hidenWaitngView()
{
    Service::hideWaitingProgressView();
}

void KRBaseController::endEditing()
{
    // Once another screen has come on top, what is being edited is that one's.
    if (window() && (!navigation || isOnTop()))
        window()->endEditing();
}

bool KRBaseController::isOnTop() const
{
    return navigation && navigation->top() == this;
}

bool KRBaseController::isInFront() const
{
    if (!window())
        return false;
    return navigation ? isOnTop() && window()->topStack() == navigation : window()->presented()->count() == 0;
}
