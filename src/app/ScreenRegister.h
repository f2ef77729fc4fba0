#pragma once

struct Program;

/// The name of the screen that comes up when no other is open.
inline constexpr char navigatorName[] = "frmStartUp";

/// Fills the program's register with every screen and form: the one place that knows them all.
void registerScreens(Program& program);
