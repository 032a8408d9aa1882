#include "ReportDialog.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include "QtText.h"

namespace tarnel::qt {

QString factsOf(const FailureReport& report) {
  const auto fact = [](const char* name, const std::string& value) {
    return QString::fromUtf8(name) + text(value) + u'\n';
  };
  return fact("Error:      ", report.text) + fact("Number:     ", std::to_string(report.number)) +
         fact("Project:    ", report.project) + fact("Module:     ", report.module) +
         fact("Procedure:  ", report.procedure) + fact("Line mark:  ", std::to_string(report.lineMark)) +
         fact("Profile:    ", report.profile.empty() ? "(none chosen)" : report.profile) +
         fact("Version:    ", report.version) + fact("Database:   ", report.database) +
         fact("Mailbox:    ", report.mailbox) + fact("Kept in:    ", report.keptIn);
}

ReportDialog::ReportDialog(const FailureReport& report, QWidget* parent) : QDialog(parent) {
  setWindowTitle(tr("Tarnel - Error Report"));
  auto* rows = new QVBoxLayout(this);
  auto* heading =
      new QLabel(tr("Something went wrong that the program did not foresee, and it has to close its windows.\n"
                    "What is written below helps to find the cause. Copy it if you ask for help."));
  heading->setWordWrap(true);
  auto* facts = new QPlainTextEdit(factsOf(report).trimmed());
  facts->setReadOnly(true);
  facts->setTabChangesFocus(true);
  facts->setAccessibleName(tr("Facts of the error"));
  QFont fixed(QStringLiteral("monospace"));
  fixed.setStyleHint(QFont::Monospace);
  facts->setFont(fixed);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  QPushButton* copy = buttons->addButton(tr("&Copy"), QDialogButtonBox::ActionRole);
  connect(copy, &QPushButton::clicked, this,
          [whole = factsOf(report)] { QGuiApplication::clipboard()->setText(whole); });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  QPushButton* close = buttons->button(QDialogButtonBox::Close);
  close->setDefault(true);
  copy->setAutoDefault(false);
  rows->addWidget(heading);
  rows->addWidget(facts, 1);
  rows->addWidget(buttons);
  resize(620, 360);
  close->setFocus();
}

}  // namespace tarnel::qt
