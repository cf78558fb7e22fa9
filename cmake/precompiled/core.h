#pragma once

// What sources below the windows include, parsed once. Sources include what they use all the same: see
// AMBERTASK_PRECOMPILED.
#include <QtCore>
#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>
