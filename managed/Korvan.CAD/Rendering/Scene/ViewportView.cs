using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>The view of a viewport. Release 12 and older keep it in extended data, newer ones in the
/// entity.</summary>
internal sealed record ViewportView(
    Vec3 Target, Vec3 Direction, double Twist, Vec2 Center, double Height, IReadOnlyList<string> FrozenNames)
{
    private const string Mark = "MVIEW";

    internal bool IsUsable =>
        Height > 0 && double.IsFinite(Height) && Target.IsFinite && Direction.IsFinite && double.IsFinite(Twist)
        && double.IsFinite(Center.X) && double.IsFinite(Center.Y);

    internal static ViewportView Read(CadViewport viewport)
    {
        CadXdata? data = viewport.XdataOrNull?.Find("ACAD");
        if (data != null && data.Data.Exists(t => t.Value == Mark)
            && ReadExtended(data.Data.ItemsOf()) is ViewportView old)
        {
            return old;
        }

        return new ViewportView(
            new Vec3(viewport.ViewTarget.X, viewport.ViewTarget.Y, viewport.ViewTarget.Z),
            new Vec3(viewport.ViewDirection.X, viewport.ViewDirection.Y, viewport.ViewDirection.Z),
            viewport.ViewTwistAngle * System.Math.PI / 180,
            new Vec2(viewport.ViewCenter.X, viewport.ViewCenter.Y),
            viewport.ViewHeight,
            []);
    }

    // In order: the target and the direction as points, then twist, height and both parts of the centre as reals.
    private static ViewportView? ReadExtended(List<CadCodeValue> tags)
    {
        var numbers = new List<double>();
        var points = new List<double>();
        var frozen = new List<string>();
        foreach (CadCodeValue tag in tags)
        {
            bool isNumber = double.TryParse(
                tag.Value, NumberStyles.Float, CultureInfo.InvariantCulture, out double value);
            switch (tag.Attribute)
            {
                case 1010 or 1020 or 1030 when isNumber:
                    points.Add(value);
                    break;
                case 1040 when isNumber:
                    numbers.Add(value);
                    break;
                case 1003:
                    frozen.Add(tag.Value);
                    break;
            }
        }

        return points.Count < 6 || numbers.Count < 4
            ? null
            : new ViewportView(
                new Vec3(points[0], points[1], points[2]),
                new Vec3(points[3], points[4], points[5]),
                numbers[0] * System.Math.PI / 180,
                new Vec2(numbers[2], numbers[3]),
                numbers[1],
                frozen);
    }
}
