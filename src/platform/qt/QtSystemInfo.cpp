#include "platform/qt/QtSystemInfo.h"

#include "platform/qt/PathText.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <QStandardPaths>

#include <algorithm>
#include <array>

namespace gp {
namespace {

constexpr std::array kDepths = {4, 8, 16, 24, 32};
constexpr const char* kMemoryFile = "/proc/meminfo";
constexpr const char* kTotalMemory = "MemTotal:";

int physicalPixels(int length) {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return screen ? qRound(length * screen->devicePixelRatio()) : 0;
}

}  // namespace

int QtSystemInfo::GetScreenBPP() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (!screen) return 0;
  const auto depth = std::ranges::find_if(kDepths, [&](int known) { return known >= screen->depth(); });
  return depth == kDepths.end() ? kDepths.back() : *depth;
}

int QtSystemInfo::screenWidth() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return screen ? screen->size().width() : 0;
}

int QtSystemInfo::screenHeight() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return screen ? screen->size().height() : 0;
}

int QtSystemInfo::physicalScreenWidth() { return physicalPixels(screenWidth()); }

int QtSystemInfo::physicalScreenHeight() { return physicalPixels(screenHeight()); }

int QtSystemInfo::GetPixelsPerInch() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return screen ? qRound(screen->logicalDotsPerInchX()) : 0;
}

long long QtSystemInfo::totalMemoryKb() {
  QFile file(kMemoryFile);
  if (!file.open(QIODevice::ReadOnly)) return 0;
  for (QByteArray line = file.readLine(); !line.isEmpty(); line = file.readLine()) {
    if (line.startsWith(kTotalMemory))
      return line.mid(qstrlen(kTotalMemory)).simplified().split(' ').first().toLongLong();
  }
  return 0;
}

std::string QtSystemInfo::windowsDirectory() { return "/usr"; }

std::string QtSystemInfo::systemDirectory() { return "/usr/lib"; }

std::string QtSystemInfo::tempDirectory() {
  std::string folder = textToPath(QDir::tempPath());
  if (!folder.empty() && folder.back() != '/') folder += '/';
  return folder;
}

std::string QtSystemInfo::desktopDirectory() {
  return textToPath(QStandardPaths::writableLocation(QStandardPaths::DesktopLocation));
}

}  // namespace gp
