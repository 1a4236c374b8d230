#pragma once

namespace tessarine::testing {

// Runs the real program beside a folder that stops answering (StuckFolderWindowTest.cpp).
int runStuckFolderWindowTest(int argc, char* argv[]);

} // namespace tessarine::testing
