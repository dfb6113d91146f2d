#pragma once

// The profile of the signed-in user: a contact record about oneself. A plain value that is copied freely, on any
// thread; FriendData can be made of it.

#include "model/BaseInfo.h"

class MyProfileData : public BaseInfo
{
};
