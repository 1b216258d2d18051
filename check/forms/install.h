// Puts the Check All and Call Flow windows behind the main window's menu items.
#pragma once

namespace kq {

void InstallCheckWindows();

}  // namespace kq
