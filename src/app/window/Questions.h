// What the window asks and tells.
#pragma once

#include <QString>
#include <QWidget>

namespace vantrel {

enum class LeaveAnswer { Save, Discard, Cancel };

/// What is to become of unsaved changes to a thing of that name.
LeaveAnswer AskBeforeLeaving(QWidget* pobjParent, const QString& pstrName);
/// Whether to do something that cannot be undone; the harmless answer is the default.
bool AskWhether(QWidget* pobjParent, const QString& pstrQuestion, const QString& pstrDetails, const QString& pstrButton);
/// Something failed: what, and why.
void TellFailure(QWidget* pobjParent, const QString& pstrWhat, const QString& pstrWhy);

}  // namespace vantrel
