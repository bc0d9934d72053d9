#include "platform/qt/PathText.h"

#include "platform/text/Utf8.h"

#include <QStringDecoder>

namespace gp {
namespace {

constexpr char16_t kByteSurrogate = 0xDC00;  // plus the byte, 0x80 to 0xFF
constexpr int kFirstByte = 0x80;
constexpr int kLastByte = 0xFF;

bool isByte(QChar c) { return c.unicode() >= kByteSurrogate + kFirstByte && c.unicode() <= kByteSurrogate + kLastByte; }

QString characterToText(std::string_view character) {
  const auto byte = static_cast<unsigned char>(character.front());
  if (character.size() == 1 && byte >= kFirstByte) return QChar(static_cast<char16_t>(kByteSurrogate + byte));
  return QString::fromUtf8(character.data(), static_cast<qsizetype>(character.size()));
}

}  // namespace

QString pathToText(std::string_view path) {
  QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  QString text = decoder(QByteArrayView(path.data(), static_cast<qsizetype>(path.size())));
  if (!decoder.hasError()) return text;
  text.clear();
  while (!path.empty()) {
    const std::size_t size = characterSize(path);
    text += characterToText(path.substr(0, size));
    path.remove_prefix(size);
  }
  return text;
}

std::string textToPath(QStringView text) {
  std::string path;
  qsizetype runStart = 0;
  const auto endRun = [&](qsizetype end) { path += text.mid(runStart, end - runStart).toUtf8().toStdString(); };
  for (qsizetype i = 0; i < text.size(); ++i) {
    const bool paired = i > 0 && text[i - 1].isHighSurrogate();
    if (paired || !isByte(text[i])) continue;
    endRun(i);
    path += static_cast<char>(text[i].unicode() - kByteSurrogate);
    runStart = i + 1;
  }
  endRun(text.size());
  return path;
}

QString printable(QString line) {
  for (qsizetype i = 0; i < line.size(); ++i) {
    const bool pair = line[i].isHighSurrogate() && i + 1 < line.size() && line[i + 1].isLowSurrogate();
    if (pair)
      ++i;
    else if (!line[i].isPrint())
      line[i] = QChar::ReplacementCharacter;
  }
  return line;
}

}  // namespace gp
