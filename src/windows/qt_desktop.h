// The desktop that the language core reaches, made of Qt widgets.
#pragma once

#include <QTimer>
#include <functional>

#include "core/desktop.h"

namespace tamrix {

class Janela;

class QtDesktop : public Desktop {
 public:
  explicit QtDesktop(Janela& janela);

  BoxAnswer ShowBox(const BoxRequest& request) override;
  void PumpEvents() override;
  void Sleep(int milliseconds) override;
  Surface& CurrentSurface() override;

  void SetMainCaption(const std::string& caption) override;
  void ShowMainWindow() override;
  void CloseMainWindow() override;
  int ScreenWidth() const override;
  int ScreenHeight() const override;

  void SetLanguageTimer(bool running) override;
  [[noreturn]] void EndProcess(int status) override;

  // What each 10 ms tick of the language timer runs.
  void SetLanguageTickHandler(std::function<void()> handler);
  // Shows the boxes from now on in another form than a message box.
  using BoxPresenter = std::function<BoxAnswer(const BoxRequest&)>;
  void SetBoxPresenter(BoxPresenter presenter);

 private:
  Janela& janela_;
  BoxPresenter presentBox_;
  QTimer languageTimer_;
  std::function<void()> languageTick_;
};

}  // namespace tamrix
