#pragma once

// The common code's front door: every function is called CommonFun::name, and the header of its topic documents it.
// For the upper floors; the topics themselves call each other by their own classes.

#include "common/AccountMap.h"
#include "common/AppInfo.h"
#include "common/ChineseSpell.h"
#include "common/ConfigFile.h"
#include "common/DigitText.h"
#include "common/FileDigest.h"
#include "common/FileIcons.h"
#include "common/FolderCopy.h"
#include "common/HeadImages.h"
#include "common/HtmlImages.h"
#include "common/HtmlLinks.h"
#include "common/HtmlText.h"
#include "common/IconFont.h"
#include "common/Identifiers.h"
#include "common/ImagePath.h"
#include "common/LabelText.h"
#include "common/MessageHtml.h"
#include "common/NinePatch.h"
#include "common/PictureNames.h"
#include "common/PlainText.h"
#include "common/ScreenPlace.h"
#include "common/Sha1.h"
#include "common/ShortText.h"
#include "common/SizeText.h"
#include "common/StyleText.h"
#include "common/SystemOpen.h"
#include "common/TextCompare.h"
#include "common/TextMeasure.h"
#include "common/TimeText.h"
#include "common/WaterMark.h"
#include "common/WeatherFiles.h"
#include "model/SharedContext.h"
#include "model/SkinContext.h"
#include "model/UserIds.h"

class CommonFun : public SharedContext,
                  public UserIds,
                  public ConfigFile,
                  public AppInfo,
                  public ShortText,
                  public LabelText,
                  public HtmlText,
                  public HtmlLinks,
                  public HtmlImages,
                  public MessageHtml,
                  public PlainText,
                  public TimeText,
                  public IconFont,
                  public SkinContext,
                  public TextMeasure,
                  public TextCompare,
                  public SizeText,
                  public DigitText,
                  public WeatherFiles,
                  public SystemOpen,
                  public StyleText,
                  public Sha1,
                  public ScreenPlace,
                  public Identifiers,
                  public FolderCopy,
                  public FileDigest,
                  public ChineseSpell,
                  public AccountMap,
                  public HeadImages,
                  public ImagePath,
                  public PictureNames,
                  public NinePatch,
                  public WaterMark,
                  public FileIcons
{
};
