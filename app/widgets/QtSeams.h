#pragma once
// The window's side of the prompt and pump seams.
#include <QObject>
#include <functional>

#include "app/Prompt.h"
#include "app/Pump.h"

class QWidget;

// Message boxes with the caption, icon and "Don't show again" box of the request. A worker
// thread's request is carried over to the window's thread and waited for.
class QtPrompt : public IPrompt {
 public:
  explicit QtPrompt(QWidget* parent = nullptr) : m_parent(parent) {}
  void SetParent(QWidget* parent) { m_parent = parent; }
  PromptAnswer Show(const PromptRequest& request) override;

 private:
  PromptAnswer ShowHere(const PromptRequest& request);
  QWidget* m_parent;
};

// Lets Qt run its pending events; progress goes to a callback of the window.
class QtPump : public IPump {
 public:
  void ProcessEvents() override;
  void ProgressChanged(int percent) override {
    if (onProgress) onProgress(percent);
  }
  std::function<void(int)> onProgress;
};
