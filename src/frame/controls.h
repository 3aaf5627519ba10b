#pragma once

// Controls and lamps whose position the system keeps: the shadow, an int in state/, is the truth, and the
// named variables that the catalogue ties to it show it to the aircraft's model. Two may show one shadow.

/// Sets a shadow and writes it into each variable that shows it, changed or not: the model then agrees.
void SetControl(int* shadow, int position);

/// Writes a shadow as it stands.
void ShowControl(const int* shadow);

/// Takes the position that the model shows; 0 while the host doesn't know the variable.
void TakeControlFromModel(int* shadow);
