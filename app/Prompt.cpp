#include "app/Prompt.h"

#include <cstdio>

#include "app/Text.h"

PromptAnswer StderrPrompt::Show(const PromptRequest& request) {
  std::fprintf(stderr, "%s\n", request.text.toUtf8().constData());
  return {};
}

PromptAnswer RecordingPrompt::Show(const PromptRequest& request) {
  requests.push_back(request);
  if (answers.empty()) return {};
  PromptAnswer a = answers.front();
  answers.erase(answers.begin());
  return a;
}

QStringList RecordingPrompt::texts() const {
  QStringList out;
  for (const auto& r : requests) out << r.text;
  return out;
}

void Prompter::Message(const QString& text, PromptIcon icon, const QString& family) {
  if (!family.isEmpty() && m_suppressed.contains(family)) return;
  if (!m_ui) return;
  PromptRequest r{text, tonvane::kAppTitle, icon, false, !family.isEmpty()};
  PromptAnswer a = m_ui->Show(r);
  if (!family.isEmpty() && a.dontShowAgain) m_suppressed.insert(family);
}

bool Prompter::Ask(const QString& text, PromptIcon icon) {
  if (!m_ui) return false;
  PromptRequest r{text, tonvane::kAppTitle, icon, true, false};
  return m_ui->Show(r).yes;
}
