#pragma once

#include <gtest/gtest.h>

#include "minihost/service_log.h"

namespace support {

// While it exists, the host is asked for each block, class and attribute at most once.
struct AskedOnce {
    ~AskedOnce()
    {
        for (const char* service :
             {"ST_FIND_I", "ST_FIND_M", "CC_FIND_ATTR", "CC_IS_POLYMER", "CC_IS_OLIGOMER"})
            EXPECT_TRUE(log.repeated(service).empty()) << service;
        EXPECT_LE(log.count("CC_POLYMER_BLOCK"), 1);
        EXPECT_EQ(log.count("CC_INDEX"), 0);
    }
    minihost::ServiceLog log;
};

}  // namespace support
