// The toolkit that a host gives to its add-ons for dialogs of their own. An add-on makes a dialog
// with its controls once; both live until the host ends. From then on the add-on writes values into
// controls, and the host calls the add-on when the user works with one. The groups stand in the
// order in which a dialog comes to need them.
//
// Conventions, besides those of QuorUtil.h
// - Dialogs, tab pages and controls are 32-bit identifiers. A control's parent is a dialog or page.
// - Geometry is x, y, width, height in layout units, which the toolkit scales to the user's screen
//   and font: from the parent's upper left corner, x to the right, y down. A line of text, and with
//   it a button or a text field, is 144 units high. Labels have a position and take what width they
//   need.
// - Captions are copied; the blanks in them count.
// - Items and positions are numbered from 1.
// - Setting a control's value does not call its callback; only the user does.
// - Operations may be called only while the add-on holds the host's lock. None throws. Without
//   memory one that has no result changes nothing, and what can't be made is QuorGUIId_None.
#pragma once

#include <cstdint>

#include "quorvia/QuorUtil.h"

/// Identifiers that stand for no dialog, page or control of the add-on.
enum QuorGUIId_e : std::int32_t {
    QuorGUIId_None = -2,      // not made yet, or could not be made
    QuorGUIId_MainWindow = -1 // the host's own window
};

/// The user pressed a button, or the dialog comes up or is asked to end or to help.
using QuorGUICallback = void (*)();

/// The user changed a toggle (0 or 1), chose an item of a radio box or option menu (from 1),
/// clicked an item of a list (from 1), or a tab page was activated or deactivated (the page's
/// identifier). `value` is never null and borrowed.
using QuorGUIValueCallback = void (*)(const std::int32_t* value);

/// The user changed a text field. `text` is borrowed. False: the input does not stand.
using QuorGUITextCallback = bool (*)(const char* text);

extern "C" {

// ---- Dialogs and tabs ---------------------------------------------------------------------------

/// Makes a modal dialog, hidden at first, with the buttons of its non-null callbacks. `init` is
/// called at each launch before the dialog shows, `ok`, `apply`, `cancel` and `help` by their
/// buttons; neither OK nor Cancel hides the dialog by itself. `parent` is QuorGUIId_MainWindow or
/// another dialog. The result is the dialog, or QuorGUIId_None.
std::int32_t QuorGUIDialogCreateModal(std::int32_t parent, std::int32_t width, std::int32_t height,
                                      const char* title, QuorGUICallback init, QuorGUICallback ok,
                                      QuorGUICallback apply, QuorGUICallback cancel,
                                      QuorGUICallback help);

/// Shows the dialog with the page that was in front last; if that is not the first, it is activated
/// behind `init`. The user can do nothing else at the host until the dialog is dropped. It may be
/// launched again from its own OK callback once it is dropped. If the toolkit has no memory for
/// what the user does, it tells the user and calls `cancel`.
void QuorGUIDialogLaunch(std::int32_t dialog);

/// Hides the dialog. Its controls keep their values.
void QuorGUIDialogDrop(std::int32_t dialog);

/// A tab control without pages. Either callback may be null; each gets the page's identifier.
std::int32_t QuorGUITabAdd(std::int32_t dialog, std::int32_t x, std::int32_t y, std::int32_t width,
                           std::int32_t height, QuorGUIValueCallback activate,
                           QuorGUIValueCallback deactivate);

/// A page behind the last one; the first is in front at first. The result is a parent for controls.
std::int32_t QuorGUITabAddPage(std::int32_t tab, const char* caption);

// ---- Controls -----------------------------------------------------------------------------------
// Each result is the new control, or QuorGUIId_None. Controls are sensitive at first.

/// A border with a caption, which may be empty. It holds no controls: they stand over it.
std::int32_t QuorGUIFrameAdd(std::int32_t parent, std::int32_t x, std::int32_t y,
                             std::int32_t width, std::int32_t height, const char* caption);
std::int32_t QuorGUILabelAdd(std::int32_t parent, std::int32_t x, std::int32_t y,
                             const char* caption);
/// Off at first.
std::int32_t QuorGUIToggleAdd(std::int32_t parent, std::int32_t x, std::int32_t y,
                              std::int32_t width, std::int32_t height, const char* caption,
                              QuorGUIValueCallback callback);
std::int32_t QuorGUIButtonAdd(std::int32_t parent, std::int32_t x, std::int32_t y,
                              std::int32_t width, std::int32_t height, const char* caption,
                              QuorGUICallback callback);
/// An empty list. `multipleSelection` allows several selected items at a time.
std::int32_t QuorGUIListAdd(std::int32_t parent, std::int32_t x, std::int32_t y, std::int32_t width,
                            std::int32_t height, bool multipleSelection,
                            QuorGUIValueCallback callback);
/// An empty field of one line.
std::int32_t QuorGUITextFieldAdd(std::int32_t parent, std::int32_t x, std::int32_t y,
                                 std::int32_t width, std::int32_t height,
                                 QuorGUITextCallback callback);
/// Up to five items; null for captions that are not needed, at the end only. Item 1 is chosen at
/// first.
std::int32_t QuorGUIRadioBoxAdd(std::int32_t parent, std::int32_t x, std::int32_t y,
                                std::int32_t width, std::int32_t height, const char* caption1,
                                const char* caption2, const char* caption3, const char* caption4,
                                const char* caption5, QuorGUIValueCallback callback);
/// The captions stand in one text, with commas between them. Item 1 is chosen at first.
std::int32_t QuorGUIOptionMenuAdd(std::int32_t parent, std::int32_t x, std::int32_t y,
                                  std::int32_t width, std::int32_t height, const char* captions,
                                  QuorGUIValueCallback callback);

// ---- Values of controls -------------------------------------------------------------------------

/// 0 is off, any other value on.
void QuorGUIToggleSet(std::int32_t toggle, std::int32_t value);
/// Choose an item, from 1.
void QuorGUIRadioBoxSetToggle(std::int32_t radioBox, std::int32_t item);
void QuorGUIOptionMenuSet(std::int32_t optionMenu, std::int32_t item);

/// Empties the list, and with it the selection.
void QuorGUIListDeleteAllItems(std::int32_t list);
/// Appends a copy of `text`, not selected.
void QuorGUIListAppendItem(std::int32_t list, const char* text);
/// The selected positions, from 1 and ascending, in an array that the caller gives back through
/// QuorUtilArrayDealloc; null and 0 if nothing is selected, or if there is no memory.
void QuorGUIListGetSelectedItems(std::int32_t list, std::int32_t** positions, std::int32_t* count);

/// Shows a copy of `text`.
void QuorGUITextFieldSetString(std::int32_t textField, const char* text);
/// The text as it stands, a host string that the caller gives back; null if there is no memory.
char* QuorGUITextFieldGetString(std::int32_t textField);

/// Shows an index. With `zeroIsLast` the value 0 stands for the last index, whatever it is.
void QuorGUITextFieldSetLgIndex(std::int32_t textField, std::int64_t value, bool zeroIsLast);
/// False: the text is no index; `value` is unchanged.
bool QuorGUITextFieldGetLgIndex(std::int32_t textField, std::int64_t* value);
/// Whether the text is an index from `minimum` to `maximum`, or with `zeroIsLast` one that stands
/// for the last. If not, the toolkit tells the user, and calls the field by `name`; without memory
/// for that it tells the user so.
bool QuorGUITextFieldValidateLgIndex(std::int32_t textField, const char* name, std::int64_t minimum,
                                     std::int64_t maximum, bool zeroIsLast);

/// Shows a borrowed set in the form 1-5,7,12; nothing for a null set. `reserved` is false.
void QuorGUITextFieldSetSet(std::int32_t textField, QuorSetHandle set, bool reserved);
/// Reads the field into `*set`: a null handle becomes a new set that the caller gives back, another
/// one gets the members in place of those that it had. False: the text is no set, or there is no
/// memory; the toolkit tells the user, and `*set` is unchanged.
bool QuorGUITextFieldGetSet(std::int32_t textField, QuorSetHandle* set);

// ---- Any control --------------------------------------------------------------------------------

/// A control that is not sensitive is shown greyed, and the user can't use it.
void QuorGUISetSensitivity(std::int32_t control, bool sensitive);
/// The next key goes to this control.
void QuorGUISetInputFocus(std::int32_t control);

} // extern "C"
