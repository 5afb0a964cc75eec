// What the file commands, the commit browser and the wizards work with instead of the whole expert.
#pragma once

#include <string>

#include "expert/Activities.h"
#include "expert/ExpertUi.h"
#include "expert/FileStatuses.h"
#include "expert/MessageLog.h"
#include "expert/ProviderContext.h"

namespace kestrel::addin {

/// The parts that the expert owns; borrowed by commands, browser and wizards.
struct TCommandContext {
  IExpertUi& Ui;
  TMessageLog Log{Ui};
  TActivities Activities{ProviderCallInProgress};
  TFileStatuses Statuses{};
  TProviderContext Provider{Log, Activities, Statuses};
};

}  // namespace kestrel::addin
