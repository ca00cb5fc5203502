#pragma once

/// Registers the superseded layouts of this module.
void kbpC_RegisterOldClasses();
