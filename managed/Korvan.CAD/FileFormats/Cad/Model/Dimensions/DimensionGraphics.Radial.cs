using System;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model.Dimensions;

/// <content>Dimensions of radii and diameters.</content>
internal sealed partial class DimensionGraphics
{
    private void DrawRadius(CadRadialDimension dimension)
    {
        Vec2 center = _pen.Flat(dimension.DefinitionPoint);
        Vec2 chord = _pen.Flat(dimension.ChordPoint);
        DrawRadial(new RadialLine(center, chord, center), dimension.LeaderLength);
    }

    private void DrawDiameter(CadDiametricDimension dimension)
    {
        (Vec2 chord, Vec2 far) = (_pen.Flat(dimension.FarChordPoint), _pen.Flat(dimension.DefinitionPoint));
        Vec2 center = Vec2.Lerp(chord, far, 0.5);
        bool isFarther = HasPlace && (StoredPlace - far).Length < (StoredPlace - chord).Length;
        (chord, far) = isFarther ? (far, chord) : (chord, far);
        DrawRadial(new RadialLine(center, chord, far), dimension.LeaderLength);
    }

    private void DrawRadial(in RadialLine line, double leaderLength)
    {
        if (!(line.Radius > 0))
        {
            return;
        }

        bool isInside = HasPlace ? (StoredPlace - line.Center).Length < line.Radius : FitsInside(line);
        double rotation = RotationOf(line.Along, (isInside ? Values.Dimtih : Values.Dimtoh) != 0);
        Label label = LabelAt(default, rotation);
        label = label with { Middle = HasPlace ? StoredPlace : PlaceOf(label, line, isInside, leaderLength) };
        UseLine();
        if (!isInside && Values.Dimcen != 0)
        {
            DrawCenterMark(line.Center, line.Radius);
        }

        if (IsOn(line, label))
        {
            DrawAlong(line, label, isInside);
        }
        else
        {
            DrawHooked(line, label, isInside);
        }

        DrawText(label);
    }

    private bool FitsInside(in RadialLine line)
    {
        double width = LabelAt(default, RotationOf(line.Along, Values.Dimtih != 0)).ReachAlong(line.Along) * 2;
        double arrows = line.IsDiameter ? 2 * Arrow : Arrow;
        return Values.Dimtix != 0 || width + (2 * Gap) + arrows <= line.Length;
    }

    private Vec2 PlaceOf(in Label label, in RadialLine line, bool isInside, double leaderLength)
    {
        double half = label.ReachAlong(line.Along);
        bool isLevel = Math.Abs(Vec2.Cross(label.Along, line.Along)) > 1e-6;
        Vec2 on = isInside
            ? Vec2.Lerp(line.Far, line.Chord, 0.5)
            : line.Chord + (line.Along * (Math.Max(leaderLength, 2 * Arrow) + Gap));
        if (isInside || !isLevel)
        {
            return on + (isInside ? default : line.Along * half) + (label.Up * LiftOf(label.Rotation, line.Along));
        }

        // Level texts are at a hook.
        Vec2 side = label.Along * (Vec2.Dot(line.Along, label.Along) < 0 ? -1 : 1);
        double lift = Values.Dimtad is 0 ? 0 : Gap + (label.Height / 2);
        return on + (side * (Arrow + Gap + (label.Width / 2))) + (label.Up * lift);
    }

    /// <summary>Whether a text is on its radial line or just above it.</summary>
    private bool IsOn(in RadialLine line, in Label label)
    {
        Vec2 across = line.Along.Left;
        double distance = Math.Abs(Vec2.Dot(label.Middle - line.Center, across));
        bool isParallel = Math.Abs(Vec2.Cross(label.Along, line.Along)) < 1e-6;
        return isParallel ? distance <= (label.Height / 2) + (2 * Gap) : !HasText || distance < Gap / 2;
    }

    private void DrawAlong(in RadialLine line, in Label label, bool isInside)
    {
        double back = HasTicks ? 0 : _style.SecondArrow.Setback * Arrow;
        bool hasInner = isInside || Values.Dimtofl != 0;
        bool pointsOut = isInside || (hasInner && Values.Dimatfit is 2 or 3 && HaveRoom(line.Length));
        if (hasInner)
        {
            Vec2 start = line.IsDiameter && pointsOut ? line.Far + (line.Along * back) : line.Far;
            DrawAround(label, start, line.Chord - (line.Along * (pointsOut ? back : 0)));
        }

        DrawEnd(_style.SecondArrow, line.Chord, pointsOut ? line.Along : line.Along * -1);
        if (line.IsDiameter && hasInner && pointsOut)
        {
            DrawEnd(_style.FirstArrow, line.Far, line.Along * -1);
        }

        if (!isInside && HasText)
        {
            double at = Vec2.Dot(label.Middle - line.Chord, line.Along);
            double half = label.ReachAlong(line.Along);
            double end = label.Covers(line.Chord + (line.Along * at), Gap) ? at - half - Gap : at + half;
            _pen.Line(line.Chord + (line.Along * (pointsOut ? 0 : back)), line.Chord + (line.Along * end));
        }
    }

    /// <summary>Draws a line from the circle to a text beside the radial line, with a level hook.</summary>
    private void DrawHooked(in RadialLine line, in Label label, bool isInside)
    {
        double sign = Vec2.Dot(line.Chord - label.Middle, label.Along) < 0 ? -1 : 1;
        Vec2 side = label.Along * sign;
        bool isAbove = Values.Dimtad is not 0;
        Vec2 foot = label.Middle - (isAbove ? label.Up * (Gap + (label.Height / 2)) : default);
        Vec2 edge = foot + (side * ((label.Width / 2) + (isAbove ? 0 : Gap)));
        Vec2 knee = edge + (side * Arrow);
        Vec2 along = (line.Chord - knee).Unit();
        double back = HasTicks ? 0 : _style.SecondArrow.Setback * Arrow;
        _pen.Line(isAbove ? foot - (side * (label.Width / 2)) : edge, knee);
        _pen.Line(knee, line.Chord - (along * back));
        DrawEnd(_style.SecondArrow, line.Chord, along);
        if (!isInside && Values.Dimtofl != 0)
        {
            _pen.Line(line.Far, line.Chord);
        }
    }

    /// <summary>Draws the mark of a centre, and with a negative size also its axes, a size beyond the
    /// circle.</summary>
    private void DrawCenterMark(Vec2 center, double radius)
    {
        double size = Math.Abs(Values.Dimcen) * _style.Scale;
        (Vec2 x, Vec2 y) = (Vec2.Polar(Horizontal), Vec2.Polar(Horizontal).Left);
        foreach (Vec2 way in (ReadOnlySpan<Vec2>)[x, y])
        {
            _pen.Line(center - (way * size), center + (way * size));
            if (Values.Dimcen < 0 && radius > size)
            {
                _pen.Line(center + (way * (2 * size)), center + (way * (radius + size)));
                _pen.Line(center - (way * (2 * size)), center - (way * (radius + size)));
            }
        }
    }

    /// <summary>Draws from the circle to the point that replaces its centre, with a jog between two parallel
    /// pieces.</summary>
    private void DrawJogged(CadJoggedDimension dimension)
    {
        Vec2 chord = _pen.Flat(dimension.ChordPoint);
        Vec2 along = (chord - _pen.Flat(dimension.DefinitionPoint)).Unit();
        (Vec2 center, Vec2 jog) = (_pen.Flat(dimension.OverrideCenter), _pen.Flat(dimension.JogPoint));
        if (along == default)
        {
            return;
        }

        double angle = dimension.JogAngle is > 0 and < Math.PI ? dimension.JogAngle : Values.Dimjogang;
        double offset = Vec2.Cross(along, chord - center);
        Vec2 across = Vec2.Polar(DimensionArc.AngleOf(along) + (offset < 0 ? angle : -angle));
        Vec2 OnLine(Vec2 through) =>
            jog + (across * (Vec2.Cross(through - jog, along) / Vec2.Cross(across, along)));

        (Vec2 inner, Vec2 outer) = (OnLine(center), OnLine(chord));
        Label label = LabelAt(
            HasPlace ? StoredPlace : Vec2.Lerp(outer, chord, 0.5), RotationOf(along, Values.Dimtih != 0));
        UseLine();
        _pen.Line(center, inner);
        _pen.Line(inner, outer);
        DrawAround(label, outer, chord - (along * (_style.SecondArrow.Setback * Arrow)));
        DrawEnd(_style.SecondArrow, chord, along);
        DrawText(label);
    }

    /// <summary>A radius or a diameter: the point of the circle beside the text, and the other end.</summary>
    private readonly record struct RadialLine(Vec2 Center, Vec2 Chord, Vec2 Far)
    {
        internal bool IsDiameter => Far != Center;

        internal double Radius => (Chord - Center).Length;

        internal double Length => (Chord - Far).Length;

        internal Vec2 Along => (Chord - Center).Unit();
    }
}
