#pragma once

#include <memory>
#include <mutex>
#include <string>
#include <string_view>

namespace external_control {

/// A state report that is composed when it is read. Text() is called from any thread.
class Report {
 public:
  virtual ~Report() = default;
  [[nodiscard]] virtual std::string Text() const = 0;
};

/// A text variable that one thread replaces while others copy it: a reader gets the old text or
/// the new one, whole. The lock is held for a pointer copy only.
class Report_variable {
 public:
  Report_variable& operator=(std::string text);
  Report_variable& operator=(std::shared_ptr<const Report> report);
  [[nodiscard]] std::string Text() const;
  /// As a text, from which it can be read and with which it can be compared.
  operator std::string() const { return Text(); }
  bool operator==(std::string_view text) const { return Text() == text; }

 private:
  mutable std::mutex lock_;
  std::shared_ptr<const Report> report_;
};

}  // namespace external_control
