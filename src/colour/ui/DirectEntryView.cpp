#include "colour/ui/DirectEntryView.h"

#include "colour/ColorSelection.h"
#include "platform/qt/PathText.h"
#include "platform/qt/widgets/PictureButton.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QValidator>

#include <algorithm>

namespace gp {
namespace {

constexpr int kButtonSide = 26;

// Accepts only characters that the key filter accepts, in the form that it returns, up to the maximum length. Pasted
// text is filtered in the same way, so that "#12AB34" loses its "#" and not its last digit.
class KeyFilter : public QValidator {
 public:
  KeyFilter(QObject* parent, const DirectEntry& entry) : QValidator(parent), entry_(entry) {}

  State validate(QString& input, int& position) const override {
    QString kept;
    for (int i = 0; i < input.size(); ++i) {
      const int key = entry_.filterKey(input[i].unicode());
      if (key != 0)
        kept += QChar(static_cast<char16_t>(key));
      else if (i < position)
        --position;
    }
    const int tooMany = std::max(0, static_cast<int>(kept.size()) - entry_.maxLength());
    position = std::max(0, position - tooMany);
    input = kept.remove(position, tooMany);
    return Acceptable;
  }

 private:
  const DirectEntry& entry_;
};

}  // namespace

DirectEntryView::DirectEntryView(QWidget* parent, const QString& objectName, const QString& caption,
                                 ColorSelection& colors)
    : CaptionFrame(parent, objectName, caption),
      colors_(colors),
      txbDirectEntryColorValue_(new QLineEdit(this)),
      ckbAsHexColorValue_(new QCheckBox("Hex", this)) {
  txbDirectEntryColorValue_->setObjectName("txbDirectEntryColorValue");
  txbDirectEntryColorValue_->setAccessibleName("Color value");
  txbDirectEntryColorValue_->setValidator(new KeyFilter(this, colors_.directEntry()));
  ckbAsHexColorValue_->setObjectName("ckbAsHexColorValue");
  auto* proceed =
      new PictureButton(this, "cmdDirectEntryColorValue", {"proceed", "Proceed to select typed color", kButtonSide});
  proceed->setFocusPolicy(Qt::TabFocus);

  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(frameMargins());
  row->addWidget(txbDirectEntryColorValue_, 1);
  row->addWidget(ckbAsHexColorValue_);
  row->addWidget(proceed);

  const auto take = [this] { colors_.cmdDirectEntryColorValue(); };
  connect(proceed, &PictureButton::clicked, this, take);
  connect(txbDirectEntryColorValue_, &QLineEdit::returnPressed, this, take);
  connect(txbDirectEntryColorValue_, &QLineEdit::textEdited, this,
          [this](const QString& text) { colors_.setDirectEntryText(text.toStdString()); });
  connect(ckbAsHexColorValue_, &QCheckBox::clicked, this, [this] { colors_.ckbAsHexColorValue(); });
  refresh();
}

void DirectEntryView::refresh() {
  const DirectEntry& entry = colors_.directEntry();
  const QString text = toText(entry.text());
  if (txbDirectEntryColorValue_->text() != text) txbDirectEntryColorValue_->setText(text);
  ckbAsHexColorValue_->setChecked(entry.isHex());
}

void DirectEntryView::focusValue() { txbDirectEntryColorValue_->setFocus(Qt::OtherFocusReason); }

}  // namespace gp
