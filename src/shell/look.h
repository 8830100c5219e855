#pragma once

namespace morlek {

/// Gives the application its style, colours and font. Call once, after creating the application and
/// before the first window.
void ApplyLook();

}  // namespace morlek
