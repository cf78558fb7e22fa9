#pragma once

// What most sources that draw windows include, parsed once. Sources include what they use all the same: see
// AMBERTASK_PRECOMPILED.
#include <QtWidgets>
#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>
