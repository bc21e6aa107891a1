using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Text.Strokes;

/// <summary>The strokes of a character, and how far the pen moves over it. The unit is the height of capitals; y runs
/// up from the baseline.</summary>
internal sealed record StrokeGlyph(PathBuffer Path, double Advance);

/// <summary>The strokes of a run in ems of its font, and their advance.</summary>
internal sealed record StrokeLine(PathBuffer Path, double Advance);
