using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Hatch;

/// <summary>
/// The nine gradients of hatches over the box of the area: LINEAR, CYLINDER, SPHERICAL, HEMISPHERICAL, CURVED and
/// their INV forms, which swap the two colours.
/// </summary>
internal static class HatchGradient
{
    internal static Gradient Create(string name, double angle, bool centered, Rgba first, Rgba second, in Bounds2 box)
    {
        string kind = name.ToUpperInvariant();
        if (kind.StartsWith("INV", StringComparison.Ordinal))
        {
            kind = kind[3..];
            (first, second) = (second, first);
        }

        // "Not centred" moves the origin up and to the left by half of the way to the edge.
        double shift = centered ? 0 : -0.5;
        return kind switch
        {
            "SPHERICAL" => Radial(box, 0, shift, -shift, angle, [new(0, second), new(1, first)]),
            "HEMISPHERICAL" => Radial(box, -1, shift, -shift, angle, [new(0, second), new(1, first)]),
            "CURVED" => Linear(box, angle, Ease(first, second, shift)),
            "CYLINDER" => Linear(box, angle, [new(0, first), new(0.5 + (shift / 2), second), new(1, first)]),
            _ => Linear(box, angle, [new(0, first), new(1 + shift, second), new(1, second)]),
        };
    }

    private static Gradient Linear(in Bounds2 box, double angle, GradientStop[] stops)
    {
        (double sin, double cos) = Math.SinCos(angle);
        double reach = ((Math.Abs(cos) * box.Width) + (Math.Abs(sin) * box.Height)) / 2;
        Vec2 c = box.Center;
        var matrix = new Affine2(cos * reach, sin * reach, -sin * reach, cos * reach, c.X, c.Y);
        return new Gradient(false, 0, 0, matrix, stops);
    }

    private static Gradient Radial(
        in Bounds2 box, double drop, double shiftX, double shiftY, double angle, GradientStop[] stops)
    {
        double radius = Math.Sqrt((box.Width * box.Width) + (box.Height * box.Height)) / 2;
        (double sin, double cos) = Math.SinCos(angle);
        Vec2 c = box.Center + (new Vec2(-sin, cos) * (drop * box.Height / 2));
        double size = drop == 0 ? radius : Math.Max(radius, box.Height);
        var matrix = new Affine2(cos * size, sin * size, -sin * size, cos * size, c.X, c.Y);
        return new Gradient(true, shiftX / 2, shiftY / 2, matrix, stops);
    }

    private static GradientStop[] Ease(Rgba first, Rgba second, double shift)
    {
        var stops = new List<GradientStop>();
        for (int i = 0; i <= 8; i++)
        {
            double t = i / 8.0;
            double k = Math.Sin((t * (1 - shift)) * Math.PI / 2);
            stops.Add(new GradientStop(t, Mix(first, second, Math.Clamp(k, 0, 1))));
        }

        return stops.ToArray();
    }

    /// <summary>The colour at a share <paramref name="k"/> of the way.</summary>
    internal static Rgba Mix(Rgba a, Rgba b, double k) => new(
        (byte)Math.Round(a.R + ((b.R - a.R) * k)),
        (byte)Math.Round(a.G + ((b.G - a.G) * k)),
        (byte)Math.Round(a.B + ((b.B - a.B) * k)),
        (byte)Math.Round(a.A + ((b.A - a.A) * k)));
}
