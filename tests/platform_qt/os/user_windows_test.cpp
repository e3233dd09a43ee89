#include <gtest/gtest.h>
#include <windows.h>

#include "platform_qt/os/handle_windows.h"
#include "platform_qt/os/user.h"

namespace verlume::qt {
namespace {

constexpr wchar_t kPipe[] = L"\\\\.\\pipe\\verlume-user-windows-test";

TEST(UserTest, BothEndsOfAPipeOfOneUserKnowEachOther) {
  const Handle server(
      ::CreateNamedPipeW(kPipe, PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE, 1, 64, 64, 0, nullptr));
  const Handle client(
      ::CreateFileW(kPipe, GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr));
  EXPECT_TRUE(IsSameUser(reinterpret_cast<std::intptr_t>(server.Get())));
  EXPECT_TRUE(IsSameUser(reinterpret_cast<std::intptr_t>(client.Get())));
}

TEST(UserTest, WhatIsNoPipeIsNobody) {
  EXPECT_FALSE(IsSameUser(-1));
  const Handle file(::CreateFileW(L"NUL", GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
  EXPECT_FALSE(IsSameUser(reinterpret_cast<std::intptr_t>(file.Get())));
}

}  // namespace
}  // namespace verlume::qt
