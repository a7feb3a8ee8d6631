#include "core/shell/OverlayHost.h"

#include <algorithm>

using namespace std::chrono_literals;

void OverlayHost::showBanner(BannerKind kind, const QString &content)
{
    MVNoticeView banner;
    banner.content = content;
    banner.success = kind == BannerKind::Success;
    banner.number = ++lastNumber;
    rows.append({banner});
    timed.push_back({banner.number, {}});
    timed.back().timer.startOnce(2s, [this, number = banner.number] { fade(number); });
}

void OverlayHost::showBannerLater(BannerKind kind, const QString &content)
{
    const int number = ++lastNumber;
    pending.push_back({number, {}});
    pending.back().timer.startOnce(500ms, [this, number, kind, content] {
        pending.remove_if([number](const Banner &banner) { return banner.number == number; });
        showBanner(kind, content);
    });
}

void OverlayHost::hideBanners()
{
    timed.clear();
    rows.setRows({});
}

void OverlayHost::showWaiting(const QString &text)
{
    if (status.isNull())
        patience.startOnce(5s, [this] { Q_EMIT waitingChanged(); });
    status = text;
    Q_EMIT waitingChanged();
}

void OverlayHost::hideWaiting()
{
    if (status.isNull())
        return;
    status = QString();
    patience.stop();
    Q_EMIT waitingChanged();
}

void OverlayHost::fade(int number)
{
    const int row = rowOf(number);
    MVNoticeView banner = rows.at(row);
    banner.fading = true;
    rows.setRow(row, banner);
    const auto found =
        std::find_if(timed.begin(), timed.end(), [number](const Banner &b) { return b.number == number; });
    found->timer.startOnce(500ms, [this, number] { discard(number); });
}

void OverlayHost::discard(int number)
{
    rows.removeAt(rowOf(number));
    timed.remove_if([number](const Banner &banner) { return banner.number == number; });
}

int OverlayHost::rowOf(int number) const
{
    for (int row = 0; row < rows.count(); ++row) {
        if (rows.at(row).number == number)
            return row;
    }
    return -1;
}
