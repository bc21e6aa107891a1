using System;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>Maps from world coordinates to the plane that is drawn.</summary>
internal static class ViewTransform
{
    /// <summary>Turns about the world's x, y and z axes in this order, in degrees.</summary>
    internal static Affine3 Turned(double xDegrees, double yDegrees, double zDegrees)
    {
        (double sx, double cx) = Math.SinCos(xDegrees * Math.PI / 180);
        (double sy, double cy) = Math.SinCos(yDegrees * Math.PI / 180);
        var aboutX = new Affine3(Vec3.UnitX, new Vec3(0, cx, sx), new Vec3(0, -sx, cx), default);
        var aboutY = new Affine3(new Vec3(cy, 0, -sy), Vec3.UnitY, new Vec3(sy, 0, cy), default);
        return Affine3.RotationZ(zDegrees * Math.PI / 180) * aboutY * aboutX;
    }

    /// <summary>
    /// The map of a viewport: the target and view direction give the display plane, the twist turns it, and the view
    /// centre, at the scale of the two heights, lands on the centre of the viewport's rectangle.
    /// </summary>
    internal static Affine3 Viewport(
        Vec3 target, Vec3 direction, double twist, Vec2 viewCenter, double viewHeight, Vec2 paperCenter,
        double paperHeight)
    {
        Affine3 plane = Ocs.ToWorld(direction == default ? Vec3.UnitZ : direction);
        Affine3 toPlane = Transposed(plane) * Affine3.Translation(-target);
        double scale = paperHeight / viewHeight;
        return Affine3.Translation(new Vec3(paperCenter.X, paperCenter.Y, 0))
            * Affine3.Scaling(scale, scale, scale)
            * Affine3.Translation(new Vec3(-viewCenter.X, -viewCenter.Y, 0))
            * Affine3.RotationZ(twist)
            * toPlane;
    }

    // The inverse of a rotation.
    private static Affine3 Transposed(in Affine3 m) => new(
        new Vec3(m.AxisX.X, m.AxisY.X, m.AxisZ.X),
        new Vec3(m.AxisX.Y, m.AxisY.Y, m.AxisZ.Y),
        new Vec3(m.AxisX.Z, m.AxisY.Z, m.AxisZ.Z),
        default);
}
