#pragma once

/// Registers the superseded layouts of this module.
void kamC_RegisterOldClasses();
