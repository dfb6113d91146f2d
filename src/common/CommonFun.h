#pragma once

// The common code's front door: every function is called CommonFun::name, and the header of its topic documents it.
// For the upper floors; the topics themselves call each other by their own classes.

#include "common/AppInfo.h"
#include "common/ConfigFile.h"
#include "common/IconFont.h"
#include "common/TimeText.h"
#include "model/SharedContext.h"
#include "model/SkinContext.h"
#include "model/UserIds.h"

class CommonFun : public SharedContext,
                  public UserIds,
                  public ConfigFile,
                  public AppInfo,
                  public TimeText,
                  public IconFont,
                  public SkinContext
{
};
