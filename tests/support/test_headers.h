// What most tests include, precompiled once for all of them. A test names what it needs all the
// same: builds that compile each file by itself do without.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <any>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <unordered_map>
#include <vector>
