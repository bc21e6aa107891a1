using System;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model.Dimensions;

/// <summary>What dimensions measure: lengths in drawing units, angles in radians.</summary>
internal static class DimensionMeasure
{
    internal static double Of(CadDimensionBase dimension)
    {
        var pen = new DimensionPen(dimension);
        double value = dimension switch
        {
            CadAlignedDimension linear => Linear(linear, pen),
            Cad2LineAngularDimension angle => DimensionArc.Of(angle, pen).Sweep,
            CadAngularDimension angle => DimensionArc.Of(angle, pen).Sweep,
            CadArcLengthDimension arc => ArcLength(arc, pen),
            CadDiametricDimension d => (pen.Flat(d.FarChordPoint) - pen.Flat(d.DefinitionPoint)).Length,
            CadRadialDimension r => (pen.Flat(r.ChordPoint) - pen.Flat(r.DefinitionPoint)).Length,
            CadJoggedDimension r => (pen.Flat(r.ChordPoint) - pen.Flat(r.DefinitionPoint)).Length,
            CadDimensionOrdinate ordinate => Ordinate(ordinate, pen),
            _ => 0,
        };
        return double.IsFinite(value) ? value : 0;
    }

    /// <summary>Gets the direction of the dimension line.</summary>
    internal static Vec2 DirectionOf(CadAlignedDimension dimension, DimensionPen pen)
    {
        Vec2 across = pen.Flat(dimension.SecondExtensionPoint) - pen.Flat(dimension.FirstExtensionPoint);
        bool isAligned = dimension is not CadRotatedDimension && across.Length > 0;
        return isAligned ? across.Unit() : Vec2.Polar(Angles.Radians(dimension.RotationAngle));
    }

    /// <summary>Gets the direction of the extension lines.</summary>
    internal static Vec2 ExtensionOf(CadAlignedDimension dimension, Vec2 direction)
    {
        double angle = Math.Atan2(direction.Y, direction.X) + Angles.Radians(dimension.ObliqueAngle);
        Vec2 oblique = Vec2.Polar(angle);
        bool isOblique = dimension.ObliqueAngle != 0 && Math.Abs(Vec2.Cross(direction, oblique)) > 1e-6;
        return isOblique ? oblique : direction.Left;
    }

    private static double Linear(CadAlignedDimension dimension, DimensionPen pen)
    {
        Vec2 direction = DirectionOf(dimension, pen);
        Vec2 extension = ExtensionOf(dimension, direction);
        Vec2 across = pen.Flat(dimension.SecondExtensionPoint) - pen.Flat(dimension.FirstExtensionPoint);
        return Math.Abs(Vec2.Cross(across, extension) / Vec2.Cross(direction, extension));
    }

    private static double ArcLength(CadArcLengthDimension arc, DimensionPen pen)
    {
        double radius = (pen.Flat(arc.FirstExtensionPoint) - pen.Flat(arc.ArcCenter)).Length;
        return radius * DimensionArc.Of(arc, pen).Sweep;
    }

    private static double Ordinate(CadDimensionOrdinate dimension, DimensionPen pen)
    {
        Vec2 x = Vec2.Polar(-Angles.Radians(dimension.HorizontalDirection));
        Vec2 way = pen.Flat(dimension.FeaturePoint) - pen.Flat(dimension.DefinitionPoint);
        bool isX = (dimension.TypeOfDimension & (int)CadDimensionType.OrdinateX) != 0;
        return Math.Abs(Vec2.Dot(way, isX ? x : x.Left));
    }
}
