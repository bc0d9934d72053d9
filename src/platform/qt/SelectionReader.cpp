#include "platform/qt/SelectionReader.h"

#include <cstdlib>
#include <poll.h>
#include <string_view>
#include <vector>
#include <xcb/xcb.h>

namespace gp {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::uint32_t kAllWords = 0x1FFFFFFF;  // of four bytes
constexpr qsizetype kMostFormats = 1024;
constexpr const char* kTargets = "TARGETS";

struct Freed {
  void operator()(void* memory) const { std::free(memory); }
};
template <class Reply>
using Owned = std::unique_ptr<Reply, Freed>;
using Event = Owned<xcb_generic_event_t>;

}  // namespace

class SelectionReader::Connection {
 public:
  explicit Connection(xcb_connection_t* connection)
      : connection_(connection),
        window_(xcb_generate_id(connection)),
        clipboard_(atom("CLIPBOARD")),
        incremental_(atom("INCR")),
        property_(atom("GLIMMERPANE_SELECTION")) {
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const std::uint32_t wanted = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(connection, 0, window_, screen->root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &wanted);
  }
  ~Connection() { xcb_disconnect(connection_); }
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  std::optional<QByteArray> request(std::string_view target, std::chrono::milliseconds longest, qsizetype mostBytes) {
    end_ = Clock::now() + longest;
    xcb_delete_property(connection_, window_, property_);
    xcb_convert_selection(connection_, window_, clipboard_, atom(target), property_, XCB_CURRENT_TIME);
    if (!waitForAnswer()) return std::nullopt;
    bool isIncremental = false;
    auto content = take(mostBytes, &isIncremental);
    return isIncremental ? readPieces(mostBytes) : std::move(content);
  }

  std::string nameOf(xcb_atom_t number) const {
    const Owned<xcb_get_atom_name_reply_t> reply(
        xcb_get_atom_name_reply(connection_, xcb_get_atom_name(connection_, number), nullptr));
    if (!reply) return {};
    return {xcb_get_atom_name_name(reply.get()), static_cast<std::size_t>(xcb_get_atom_name_name_length(reply.get()))};
  }

 private:
  xcb_atom_t atom(std::string_view name) const {
    const auto cookie = xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection_, cookie, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
  }

  // Null when the time is over or the connection is lost.
  Event nextEvent() {
    xcb_flush(connection_);
    for (;;) {
      if (Event event{xcb_poll_for_event(connection_)}) return event;
      const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end_ - Clock::now()).count();
      pollfd input{.fd = xcb_get_file_descriptor(connection_), .events = POLLIN, .revents = 0};
      if (left <= 0 || xcb_connection_has_error(connection_)) return nullptr;
      if (poll(&input, 1, static_cast<int>(left)) < 0) return nullptr;
    }
  }

  // False when the owner refuses or stays silent.
  bool waitForAnswer() {
    while (const Event event = nextEvent()) {
      if ((event->response_type & 0x7F) != XCB_SELECTION_NOTIFY) continue;
      return reinterpret_cast<const xcb_selection_notify_event_t*>(event.get())->property == property_;
    }
    return false;
  }

  bool waitForPiece() {
    while (const Event event = nextEvent()) {
      if ((event->response_type & 0x7F) != XCB_PROPERTY_NOTIFY) continue;
      const auto* change = reinterpret_cast<const xcb_property_notify_event_t*>(event.get());
      if (change->atom == property_ && change->state == XCB_PROPERTY_NEW_VALUE) return true;
    }
    return false;
  }

  // Takes the content of the property, which is removed: that asks the owner for the next piece.
  std::optional<QByteArray> take(qsizetype mostBytes, bool* isIncremental = nullptr) {
    const auto cookie = xcb_get_property(connection_, 1, window_, property_, XCB_GET_PROPERTY_TYPE_ANY, 0, kAllWords);
    const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection_, cookie, nullptr));
    if (!reply) return std::nullopt;
    if (isIncremental) *isIncremental = reply->type == incremental_;
    const qsizetype size = xcb_get_property_value_length(reply.get());
    if (size > mostBytes) return std::nullopt;
    return QByteArray(static_cast<const char*>(xcb_get_property_value(reply.get())), size);
  }

  // An empty piece is the last one.
  std::optional<QByteArray> readPieces(qsizetype mostBytes) {
    QByteArray content;
    while (waitForPiece()) {
      const auto piece = take(mostBytes - content.size());
      if (!piece) return std::nullopt;
      if (piece->isEmpty()) return content;
      content += *piece;
    }
    return std::nullopt;
  }

  xcb_connection_t* const connection_;
  const xcb_window_t window_;
  const xcb_atom_t clipboard_;
  const xcb_atom_t incremental_;
  const xcb_atom_t property_;
  Clock::time_point end_;
};

SelectionReader::SelectionReader() {
  xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
  if (xcb_connection_has_error(connection))
    xcb_disconnect(connection);
  else
    connection_ = std::make_unique<Connection>(connection);
}

SelectionReader::~SelectionReader() = default;

QStringList SelectionReader::formats(std::chrono::milliseconds longest) {
  QStringList names;
  const qsizetype mostBytes = kMostFormats * static_cast<qsizetype>(sizeof(xcb_atom_t));
  const auto targets = connection_ ? connection_->request(kTargets, longest, mostBytes) : std::nullopt;
  if (!targets) return names;
  const auto* numbers = reinterpret_cast<const xcb_atom_t*>(targets->constData());
  const std::vector<xcb_atom_t> atoms(numbers, numbers + targets->size() / static_cast<qsizetype>(sizeof(xcb_atom_t)));
  for (const xcb_atom_t number : atoms) names.append(QString::fromStdString(connection_->nameOf(number)));
  return names;
}

std::optional<QByteArray> SelectionReader::data(const std::string& format, std::chrono::milliseconds longest,
                                                qsizetype mostBytes) {
  return connection_ ? connection_->request(format, longest, mostBytes) : std::nullopt;
}

}  // namespace gp
