using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Text.Strokes;

/// <summary>The strokes of a character, and how far the pen moves over it. The unit is the height of capitals; y runs
/// up from the baseline.</summary>
internal sealed record StrokeGlyph(PathBuffer Path, double Advance);

/// <summary>How far the pen moves over the strokes of a run, and the box around them, in ems of its font.</summary>
internal sealed record StrokeLine(double Advance, Bounds2 Ink);
