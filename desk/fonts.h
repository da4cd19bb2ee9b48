// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class Form;

/// The library asks for the families that a form names and chooses no other. On machines without them Desk substitutes
/// an installed family of the right region, so that characters do not take the shapes of another language.
namespace fonts {

/// Substitutes the Chinese families of forms where they are not installed. Once, at the start of the program.
void substituteMissing();

/// For each family of the form, one line that says which face is used for it.
QStringList facesUsedBy(const Form &form);

} // namespace fonts
