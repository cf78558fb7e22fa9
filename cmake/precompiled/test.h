#pragma once

// What nearly every test includes, parsed once. Sources include what they use all the same: see
// AMBERTASK_PRECOMPILED.
#include <QtTest>
#include <QtWidgets>
#include <algorithm>
#include <array>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <vector>
