#include "core/session/TZUserModel.h"

#include "core/platform/Platform.h"
#include "core/platform/SettingsStore.h"
#include "core/session/SettingsKeys.h"
#include "core/util/Text.h"

TZUserModel TZUserModel::stored()
{
    return fromDictionary<TZUserModel>(Platform::current().settings.value(SettingsKeys::user));
}
