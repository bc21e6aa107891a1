using System;

namespace Korvan.CAD.Geometry;

/// <summary>The object coordinate system of a planar entity, which the format gives by its normal alone.</summary>
internal static class Ocs
{
    private const double NearPole = 1.0 / 64.0;

    /// <summary>
    /// The map from object to world coordinates by the arbitrary axis algorithm of the exchange format: the x axis
    /// is Wy × N when N is within 1/64 of the world's z axis, else Wz × N.
    /// </summary>
    internal static Affine3 ToWorld(Vec3 normal)
    {
        Vec3 n = normal.Unit();
        if (!n.IsFinite || n == default || n == Vec3.UnitZ)
        {
            return Affine3.Identity;
        }

        bool nearPole = Math.Abs(n.X) < NearPole && Math.Abs(n.Y) < NearPole;
        Vec3 x = Vec3.Cross(nearPole ? Vec3.UnitY : Vec3.UnitZ, n).Unit();
        return new Affine3(x, Vec3.Cross(n, x).Unit(), n, default);
    }
}
