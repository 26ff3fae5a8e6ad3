#include "windows/about_window.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

namespace tamrix {
namespace {

constexpr const char* kTitle = "Tamrix";
constexpr const char* kTitleLine = "Tamrix compiler";
constexpr const char* kVersionLine = "VERSION " TAMRIX_VERSION;
constexpr int kTitleLinePoints = 14;

}  // namespace

BoxRequest AboutBoxRequest() {
  BoxRequest request;
  request.buttons = BoxButtons::Ok;
  request.icon = BoxIcon::None;
  request.title = kTitle;
  request.text = std::string(kTitleLine) + "\r\n" + kVersionLine;
  request.defaultAnswer = BoxAnswer::Ok;
  return request;
}

BoxAnswer ShowAboutWindow() {
  QDialog window;
  window.setWindowTitle(QString::fromLatin1(kTitle));
  window.setWindowFlags(Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);

  auto* titleLine = new QLabel(QString::fromLatin1(kTitleLine), &window);
  QFont titleFont = titleLine->font();
  titleFont.setPointSize(kTitleLinePoints);
  titleFont.setBold(true);
  titleLine->setFont(titleFont);
  titleLine->setAlignment(Qt::AlignCenter);

  auto* version = new QLabel(QString::fromLatin1(kVersionLine), &window);
  version->setObjectName(QStringLiteral("LblVersao"));
  version->setAlignment(Qt::AlignCenter);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, &window);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &window, &QDialog::accept);

  auto* layout = new QVBoxLayout(&window);
  layout->addWidget(titleLine);
  layout->addWidget(version);
  layout->addWidget(buttons);
  layout->setSizeConstraint(QLayout::SetFixedSize);

  window.exec();
  return BoxAnswer::Ok;
}

}  // namespace tamrix
