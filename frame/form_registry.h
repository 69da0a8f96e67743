// The forms that are loaded, found by name: this is how rooms of the program reach each other's
// forms.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "base/geometry.h"
#include "frame/form_entry.h"
#include "theme/theme_record.h"

namespace varnel {

// What the program may ask of any widget form.
class LiveForm {
 public:
  virtual ~LiveForm() = default;

  virtual const FormEntry& entry() const = 0;
  virtual ThemeRecord& theme() = 0;
  // Lays the form out again for its present size; afterwards WidgetRefresh repaints it. Both are
  // called, in this order, after anything that changes the frame's look or size.
  virtual void Form_Resize() = 0;
  virtual void WidgetRefresh() = 0;
  // Applies the chrome of the form's theme: always-on-top, derived colours, opacity.
  virtual void ApplyChrome() = 0;
  // Gives the form a new size, in twips. It is brought on screen but not snapped to the grid, and
  // goes back to its corner when a later size lets it.
  virtual void SetSize(int width, int height) = 0;
  // Its window's place, in pixels of the screen.
  virtual Rect Bounds() const = 0;
  virtual bool on_top() const = 0;
  // Keeps this window above others or not, now and later, whatever the setting for all says.
  virtual void SetOnTop(bool on) = 0;
  // What the form shows at this moment, in a few words; empty where there is nothing to tell.
  virtual std::wstring Summary() const = 0;
};

class FormRegistry {
 public:
  void Add(std::wstring_view name, LiveForm& form) { forms_[std::wstring(name)] = &form; }
  // Without effect when the name belongs to another form: one that was unloaded may go only after
  // its widget was opened again.
  void Remove(std::wstring_view name, const LiveForm& form) {
    if (Find(name) == &form) forms_.erase(std::wstring(name));
  }
  // The loaded form of that name, or null.
  LiveForm* Find(std::wstring_view name) const {
    const auto found = forms_.find(std::wstring(name));
    return found == forms_.end() ? nullptr : found->second;
  }
  const std::map<std::wstring, LiveForm*>& all() const { return forms_; }

 private:
  std::map<std::wstring, LiveForm*> forms_;
};

}  // namespace varnel
