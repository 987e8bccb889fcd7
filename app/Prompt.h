#pragma once
// The prompt seam: message boxes and Yes/No questions. The GUI shows a QMessageBox,
// the CLI writes to stderr and answers No, tests record what was asked.
#include <QSet>
#include <QString>
#include <QStringList>
#include <vector>

enum class PromptIcon { Error, Warning, Information, Question };

struct PromptRequest {
  QString text;
  QString caption;          // "Tonvane 1.0" unless a site says otherwise
  PromptIcon icon = PromptIcon::Error;
  bool yesNo = false;       // a question with Yes and No
  bool dontShowBox = false; // carries the "Don't show again" check box
};

struct PromptAnswer {
  bool yes = false;
  bool dontShowAgain = false;
};

class IPrompt {
 public:
  virtual ~IPrompt() = default;
  virtual PromptAnswer Show(const PromptRequest& request) = 0;
};

// Answers No to every question and prints each text on stderr.
class StderrPrompt : public IPrompt {
 public:
  PromptAnswer Show(const PromptRequest& request) override;
};

// Keeps every request; answers from a queue (No when it runs dry).
class RecordingPrompt : public IPrompt {
 public:
  PromptAnswer Show(const PromptRequest& request) override;
  std::vector<PromptRequest> requests;
  std::vector<PromptAnswer> answers;  // consumed from the front
  QStringList texts() const;
  void clear() { requests.clear(); answers.clear(); }
};

// Front to the prompt with the run's memory of "Don't show again" per family.
class Prompter {
 public:
  explicit Prompter(IPrompt* ui = nullptr) : m_ui(ui) {}
  void SetUi(IPrompt* ui) { m_ui = ui; }
  IPrompt* Ui() const { return m_ui; }

  // A message box. A non-empty family adds the check box; once ticked, that family is silent.
  void Message(const QString& text, PromptIcon icon = PromptIcon::Error, const QString& family = {});
  // A Yes/No question; true for Yes.
  bool Ask(const QString& text, PromptIcon icon = PromptIcon::Error);
  bool IsSuppressed(const QString& family) const { return m_suppressed.contains(family); }
  void ResetMemory() { m_suppressed.clear(); }

 private:
  IPrompt* m_ui;
  QSet<QString> m_suppressed;
};
