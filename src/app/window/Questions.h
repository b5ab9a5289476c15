// The boxes of the window.
#pragma once

#include <QString>
#include <QWidget>

namespace vantrel {

enum class LeaveAnswer { Save, Discard, Cancel };

/// Asks what to do with unsaved changes to a thing of that name.
LeaveAnswer AskBeforeLeaving(QWidget* pobjParent, const QString& pstrName);
/// Asks whether to do something that cannot be undone. Cancel is the default.
bool AskWhether(QWidget* pobjParent, const QString& pstrQuestion, const QString& pstrDetails, const QString& pstrButton);
/// Says what failed, and why.
void TellFailure(QWidget* pobjParent, const QString& pstrWhat, const QString& pstrWhy);

}  // namespace vantrel
