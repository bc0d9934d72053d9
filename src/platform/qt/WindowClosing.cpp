#include "platform/qt/WindowClosing.h"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

namespace gp {
namespace {

constexpr std::uint32_t kTitleWords = 1024;  // of four bytes
constexpr std::uint8_t kFormat32 = 32;
constexpr int kMaximumDepth = 4;  // window managers insert frames between the root and a program's window

struct Freed {
  void operator()(void* reply) const { std::free(reply); }
};
template <class Reply>
using Owned = std::unique_ptr<Reply, Freed>;

struct Disconnected {
  void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

class TitleCloser {
 public:
  TitleCloser(xcb_connection_t* connection, const std::string& title, int process)
      : connection_(connection),
        title_(title),
        process_(static_cast<std::uint32_t>(process)),
        name_(atom("_NET_WM_NAME")),
        processNumber_(atom("_NET_WM_PID")),
        protocols_(atom("WM_PROTOCOLS")),
        deleteWindow_(atom("WM_DELETE_WINDOW")) {}

  void closeBelow(xcb_window_t window, int depth) const {
    const Owned<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(connection_, xcb_query_tree(connection_, window), nullptr));
    if (!tree) return;
    const xcb_window_t* children = xcb_query_tree_children(tree.get());
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
      if (isTitled(children[i]) && isOfProcess(children[i])) {
        postClose(children[i]);
      } else if (depth < kMaximumDepth) {
        closeBelow(children[i], depth + 1);
      }
    }
  }

 private:
  xcb_atom_t atom(std::string_view name) const {
    const auto cookie = xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection_, cookie, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
  }

  std::string property(xcb_window_t window, xcb_atom_t name) const {
    const auto cookie = xcb_get_property(connection_, 0, window, name, XCB_GET_PROPERTY_TYPE_ANY, 0, kTitleWords);
    const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection_, cookie, nullptr));
    if (!reply) return {};
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
  }

  // A window manager's frame has the title too, but cannot be asked to close.
  bool isTitled(xcb_window_t window) const {
    if (property(window, protocols_).empty()) return false;
    return property(window, name_) == title_ || property(window, XCB_ATOM_WM_NAME) == title_;
  }

  bool isOfProcess(xcb_window_t window) const {
    const std::string bytes = property(window, processNumber_);
    std::uint32_t number = 0;
    if (bytes.size() != sizeof(number)) return false;
    std::memcpy(&number, bytes.data(), sizeof(number));
    return number == process_;
  }

  void postClose(xcb_window_t window) const {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = kFormat32;
    event.window = window;
    event.type = protocols_;
    event.data.data32[0] = deleteWindow_;
    event.data.data32[1] = XCB_CURRENT_TIME;
    xcb_send_event(connection_, 0, window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&event));
  }

  xcb_connection_t* connection_;
  const std::string& title_;
  const std::uint32_t process_;
  xcb_atom_t name_;
  xcb_atom_t processNumber_;
  xcb_atom_t protocols_;
  xcb_atom_t deleteWindow_;
};

}  // namespace

void closeWindowsTitled(const std::string& title, int process) {
  const std::unique_ptr<xcb_connection_t, Disconnected> connection(xcb_connect(nullptr, nullptr));
  if (xcb_connection_has_error(connection.get())) return;
  const TitleCloser closer(connection.get(), title, process);
  for (auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection.get())); screens.rem;
       xcb_screen_next(&screens)) {
    closer.closeBelow(screens.data->root, 1);
  }
  xcb_flush(connection.get());
}

}  // namespace gp
