#pragma once

/// Registers the superseded layouts of this module.
void kflC_RegisterOldClasses();
