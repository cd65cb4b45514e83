// The columns of a form's rows, label, box and unit, stand under each other through the form and its groups.
#pragma once

class QGridLayout;

/// `rows` are those of the form itself; its groups are those that fill a row of theirs. What is wider than
/// its column elsewhere, or isn't laid out in rows at all, keeps its own places.
void AlignColumns(QGridLayout& rows);
