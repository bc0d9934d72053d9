// Reads what another program offers on the clipboard of an X server, over a separate connection. Unlike with Qt's
// reader, the caller limits time and size.
#pragma once

#include <QByteArray>
#include <QStringList>

#include <chrono>
#include <memory>
#include <optional>
#include <string>

namespace gp {

class SelectionReader {
 public:
  // Connects to the display of the environment.
  SelectionReader();
  ~SelectionReader();
  SelectionReader(const SelectionReader&) = delete;
  SelectionReader& operator=(const SelectionReader&) = delete;

  // The MIME types that the owner offers. Empty without an owner, or when it does not answer in time.
  QStringList formats(std::chrono::milliseconds longest);
  // The data in a format; nullopt when the owner does not deliver it in time, or delivers more than `mostBytes`.
  std::optional<QByteArray> data(const std::string& format, std::chrono::milliseconds longest, qsizetype mostBytes);

 private:
  class Connection;
  std::unique_ptr<Connection> connection_;  // null without an X server
};

}  // namespace gp
