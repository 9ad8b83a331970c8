// A folder for each test, with a path in it for the stand-in's capture.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "platform/standin/mesh_standin.h"

namespace kesto::tests {

class CaptureFolder : public testing::Test {
protected:
    void SetUp() override
    {
        folder = std::filesystem::temp_directory_path() / ("kesto_capture_" + std::to_string(getpid()));
        std::filesystem::create_directory(folder);
        path = folder / "capture";
    }
    void TearDown() override
    {
        mesh_standin_capture(nullptr);
        std::filesystem::remove_all(folder);
    }

    std::filesystem::path folder;
    std::string path;
};

}   // namespace kesto::tests
