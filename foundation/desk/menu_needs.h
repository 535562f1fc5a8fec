#pragma once

namespace winvrx {

/// What must stand before a screen of the main window opens: a selected company, and at least one
/// employee in it.
enum class MenuNeeds { Nothing, Company, Employees };

}  // namespace winvrx
