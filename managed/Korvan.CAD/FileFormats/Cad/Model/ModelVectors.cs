using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Points of the model as vectors.</summary>
internal static class ModelVectors
{
    internal static Vec3 ToVec3(this Cad3DPoint point) => new(point.X, point.Y, point.Z);

    internal static Cad3DPoint ToPoint(this Vec3 point) => new(point.X, point.Y, point.Z);

    internal static Vec2 ToVec2(this Cad2DPoint point) => new(point.X, point.Y);

    /// <summary>The map from the object coordinates of a normal to world coordinates.</summary>
    internal static Affine3 ToPlane(this Cad3DPoint normal) => Ocs.ToWorld(normal.ToVec3());
}
