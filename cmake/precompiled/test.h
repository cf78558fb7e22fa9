#pragma once

// What nearly every test includes, parsed once.
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
