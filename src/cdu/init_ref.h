#pragma once

/// The INIT REF key: the page that the phase of flight asks for.
void SelectInitRefPage(int side);
