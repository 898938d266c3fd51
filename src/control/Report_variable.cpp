#include "control/Report_variable.h"

#include <utility>

namespace external_control {

namespace {

class Plain_report : public Report {
 public:
  explicit Plain_report(std::string text) : text_(std::move(text)) {}
  [[nodiscard]] std::string Text() const override { return text_; }

 private:
  std::string text_;
};

}  // namespace

Report_variable& Report_variable::operator=(std::string text) {
  return *this = std::make_shared<const Plain_report>(std::move(text));
}

Report_variable& Report_variable::operator=(std::shared_ptr<const Report> report) {
  const std::lock_guard guard(lock_);
  report_.swap(report);
  return *this;
}

std::string Report_variable::Text() const {
  std::shared_ptr<const Report> report;
  {
    const std::lock_guard guard(lock_);
    report = report_;
  }
  return report ? report->Text() : std::string();
}

}  // namespace external_control
