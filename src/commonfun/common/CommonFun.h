#pragma once

// All static helpers of the common code under one name, for hosts; the header of its topic documents each. Sources of
// this system include the topics that they use and call the topics' own classes.

#include "common/AccountMap.h"
#include "common/AppInfo.h"
#include "common/digests/FileDigest.h"
#include "common/digests/Identifiers.h"
#include "common/digests/Sha1.h"
#include "common/html/HtmlImages.h"
#include "common/html/HtmlLinks.h"
#include "common/html/HtmlText.h"
#include "common/html/MessageHtml.h"
#include "common/html/PlainText.h"
#include "common/pictures/FileIcons.h"
#include "common/pictures/HeadImages.h"
#include "common/pictures/IconFont.h"
#include "common/pictures/ImagePath.h"
#include "common/pictures/NinePatch.h"
#include "common/pictures/PictureNames.h"
#include "common/pictures/WaterMark.h"
#include "common/settings/ConfigFile.h"
#include "common/system/FolderCopy.h"
#include "common/system/ScreenPlace.h"
#include "common/system/SystemOpen.h"
#include "common/system/WeatherFiles.h"
#include "common/text/ChineseSpell.h"
#include "common/text/DigitText.h"
#include "common/text/LabelText.h"
#include "common/text/ShortText.h"
#include "common/text/SizeText.h"
#include "common/text/StyleText.h"
#include "common/text/TextCompare.h"
#include "common/text/TextMeasure.h"
#include "common/text/TimeText.h"
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
