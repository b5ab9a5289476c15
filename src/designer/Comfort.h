// Options that make the control do what people expect where its plain rules say otherwise.
#pragma once

namespace vantrel {

/// A host gets the plain rules; each flag replaces one of them. With all flags on, Delete, Copy and the arrow keys take exactly what looks
/// chosen.
struct Comfort {
  /// A right click. Off: the menu opens for what was chosen before; only then the object clicked is chosen as well. On: what lies under
  /// the pointer is chosen before the menu opens (an object, a label, an arc, or nothing); a click on one of several chosen objects
  /// keeps them.
  bool RightClickChooses = false;
  /// Drawing an arc. Off: afterwards nothing is chosen, and the source stays the current element without looking it. On: the arc's
  /// target is chosen; the source is when the arc was refused.
  bool ArcTargetIsChosen = false;
  /// Tab in a view. Off: the next object is chosen in addition to the current one. On: it is chosen alone.
  bool TabChoosesOne = false;
  /// Copy and paste. Off: the clipboard is the selection itself, and Paste deletes what is selected and puts the copies at the current
  /// position. On: Paste deletes nothing and chooses the copies. They lie a little right of and below what was copied, or pasted last,
  /// and at the current position once that has changed since.
  bool PasteKeepsOriginals = false;
  /// A press on one of several chosen objects. Off: it keeps them when the rubber band chose them, and otherwise chooses the object alone.
  /// On: a drag moves them all, however they were chosen; a click chooses the object alone.
  bool DragMovesChosen = false;
  /// A locked chart, and the modes other than design. Off: Delete and the arrow keys change the chart all the same, bend points can be
  /// dragged outside design mode, and a drag that moves nothing marks the workflow as changed. On: none of that happens.
  bool LockHolds = false;
  /// Two presses in quick succession while an arc is drawn. Off: they are a double-click. On: the second ends the arc as any press does.
  bool QuickPressEndsArc = false;
  /// The letters that insert a place, a transition or a note, where a window binds them. Off: each letter inserts an object. On: the
  /// text of the new object is edited at once, so that letters typed next go there and make no more objects.
  bool LettersWriteText = false;
  /// A note's text, where a view edits it. Off: the box has one line. On: it has several; Enter ends the editing and Shift+Enter
  /// breaks the line.
  bool NotesHaveLines = false;
  /// What is current, chosen and marked. Off: an element stays current when its object is no longer selected, and a new current element
  /// takes the highlight from an arc that stays selected; the rubber band and "Select All" take bend points, which do not show it; after a
  /// press on a handle of the focus frame Delete clears the label's text. On: what is no longer selected is not current either; selected
  /// arcs stay highlighted; bend points are not selected but move with an arc whose two ends move; Delete always takes what is chosen.
  /// Objects inserted by a command are chosen, and so is a single object that the rubber band took.
  bool ChosenIsSeen = false;

  static constexpr Comfort All() { return {true, true, true, true, true, true, true, true, true, true}; }
};

}  // namespace vantrel
