#include "log/TestLog.h"

#include "app/Session.h"

TestLog::~TestLog() { CloseLog(); }
bool TestLog::OpenLog() { return false; }
RowState TestLog::FindRow(const QString&) { return RowState::Miss; }
ReadOutcome TestLog::ReadResult(LogTest, LevelResult&) { return ReadOutcome::Partial; }
bool TestLog::WriteRow(const QString&, LogTest, RowState, const LevelResult&) { return false; }
void TestLog::CloseLog() { m_open = false; }
