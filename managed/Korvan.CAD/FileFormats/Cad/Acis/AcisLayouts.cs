using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>
/// The values of records after their pointers, a character each: d number, D number that versions or other values may
/// do without, i integer, l integer of 64 bits, p position, v direction, r end of a range; f, F, s, R, E and S flags;
/// 0 to 3 and L enumerations; { a definition in braces, b and c curves and B a surface of splines, a another curve or
/// surface, n a list of numbers.
/// </summary>
internal static class AcisLayouts
{
    internal static readonly AcisFlag Reversed = new("forward", "reversed");
    internal static readonly AcisFlag ReversedV = new("forward_v", "reverse_v");
    internal static readonly AcisFlag Sides = new("single", "double");
    internal static readonly AcisFlag Containment = new("out", "in");
    internal static readonly AcisFlag Range = new("I", "F");
    internal static readonly AcisFlag Rotation = new("no_rotate", "rotate");
    internal static readonly AcisFlag Reflection = new("no_reflect", "reflect");
    internal static readonly AcisFlag Shear = new("no_shear", "shear");

    internal static readonly AcisFlag[] Flags =
        [Reversed, ReversedV, Sides, Containment, Range, Rotation, Reflection, Shear];

    /// <summary>How much of a spline is stored.</summary>
    internal static readonly string[] Levels = ["full", "summary", "none", "historical"];

    internal static readonly string[] Closures = ["open", "closed", "periodic"];

    internal static readonly string[] Poles = ["none", "low", "high", "both"];

    internal static readonly string[] Weighted = ["neither", "u", "v", "both"];

    /// <summary>What happens to an attribute when its owner is split, merged, transformed and copied.</summary>
    internal static readonly string[][] Actions =
    [
        ["lose", "keep", "copy", "custom"],
        ["lose", "keep_kept", "keep_one", "keep_all", "custom"],
        ["lose", "ignore", "apply", "custom"],
        ["lose", "keep", "copy", "custom"],
    ];

    private const string Attribute = "name_attrib-gen-attrib";

    private static readonly Dictionary<string, string> Records = new()
    {
        ["face"] = "fs",
        ["coedge"] = "f",
        ["tcoedge-coedge"] = "f",
        ["edge"] = "DDf",
        ["tedge-edge"] = "DDf",
        ["point"] = "p",
        ["transform"] = "vvvvdRES",
        ["straight-curve"] = "pvrr",
        ["ellipse-curve"] = "pvvdrr",
        ["intcurve-curve"] = "f{rr",
        ["pcurve"] = "iA{DD",
        ["plane-surface"] = "pvvFrrrr",
        ["cone-surface"] = "pvvdrrddDfrrrr",
        ["sphere-surface"] = "pdvvFrrrr",
        ["torus-surface"] = "pvddvFrrrr",
        ["spline-surface"] = "f{rrrr",
        ["rgb_color-st-attrib"] = "ddd",
        ["eye_refinement"] = "iiiiiidddddddiii",
        ["integer_attrib-" + Attribute] = "0123i",
        ["int64_attrib-" + Attribute] = "0123l",
        ["real_attrib-" + Attribute] = "0123d",
        ["string_attrib-" + Attribute] = "0123",
        ["position_attrib-" + Attribute] = "0123p",
        ["vector_attrib-" + Attribute] = "0123v",
    };

    private static readonly Dictionary<string, string> Definitions = new()
    {
        ["exactsur"] = "LBnnnnnnrrrr",
        ["exppc"] = "ca",
    };

    /// <summary>Returns the values of a record; null where they are not known.</summary>
    internal static string? Of(string type) => Records.GetValueOrDefault(type);

    /// <summary>Returns the values of a curve or surface within a definition.</summary>
    internal static string? OfPart(string keyword) => Of(keyword + "-curve") ?? Of(keyword + "-surface");

    /// <summary>Returns the values of a definition after its name: those that most curves begin with, unless others
    /// are known.</summary>
    internal static string OfDefinition(string name) => Definitions.GetValueOrDefault(
        name, name.EndsWith("cur", System.StringComparison.Ordinal) ? "Lbaaccrrnnnrr" : "L");
}
