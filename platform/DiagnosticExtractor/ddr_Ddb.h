#pragma once

/// Tags the container that holds the databases of a session.
struct ddr_Ddb {};
