using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model.Dimensions;

/// <summary>
/// Adds the entities of a dimension that its block would have: on layer 0 and by block where the style states nothing,
/// so that they follow the dimension. Arrowheads of leaders are drawn likewise.
/// </summary>
/// <param name="normal">The normal of the plane that the entities are in.</param>
/// <param name="origin">A point of that plane, in world coordinates.</param>
internal sealed class DimensionPen(Cad3DPoint normal, Vec3 origin)
{
    private const int TransparencyByBlock = 0x01000000;

    private readonly Affine3 _plane = normal.ToPlane();
    private readonly double _elevation = Vec3.Dot(normal.ToPlane().AxisZ, origin);

    internal DimensionPen(CadDimensionBase dimension)
        : this(dimension.ExtrusionDirection, dimension.DefinitionPoint.ToVec3())
    {
    }

    internal List<CadEntityBase> Entities { get; } = [];

    internal short Color { get; set; }

    internal short LineWeight { get; set; } = -2;

    internal string LineType { get; set; } = DimensionStyle.ByBlock;

    /// <summary>Maps a point of the world to the plane.</summary>
    internal Vec2 Flat(Cad3DPoint point) => Flat(point.ToVec3());

    /// <summary>Maps a point or a direction of the world to the plane.</summary>
    internal Vec2 Flat(Vec3 point) => new(Vec3.Dot(_plane.AxisX, point), Vec3.Dot(_plane.AxisY, point));

    internal void Line(Vec2 from, Vec2 to)
    {
        if (from != to)
        {
            Add(new CadLine { FirstPoint = World(from), SecondPoint = World(to) });
        }
    }

    /// <summary>Adds an arc by its start and sweep in radians, counterclockwise; a whole turn is a circle.</summary>
    internal void Arc(Vec2 center, double radius, double start, double sweep)
    {
        if (!(radius > 0) || !(sweep > 0))
        {
            return;
        }

        CadCircle arc = sweep >= Math.Tau ? new CadCircle() : new CadArc
        {
            StartAngle = Degrees(start),
            EndAngle = Degrees(start + sweep),
        };
        arc.CenterPoint = InPlane(center);
        arc.Radius = radius;
        arc.ExtrusionDirection = Normal();
        Add(arc);
    }

    /// <summary>Adds a filled area by its corners around.</summary>
    internal void Fill(Vec2 a, Vec2 b, Vec2 c, Vec2 d) => Add(new CadSolid
    {
        FirstPoint = InPlane(a),
        SecondPoint = InPlane(b),
        ThirdPoint = InPlane(d),
        FourthPoint = InPlane(c),
        ExtrusionDirection = Normal(),
    });

    internal void Polyline(
        ReadOnlySpan<Vec2> points, ReadOnlySpan<double> bulges, double width, CadLwPolylineFlag flags)
    {
        CadLwPolyline line = new()
        {
            ConstantWidth = width,
            Flag = flags,
            Elevation = _elevation,
            ExtrusionDirection = Normal(),
        };
        foreach (Vec2 point in points)
        {
            line.Coordinates.Add(new Cad2DPoint(point.X, point.Y));
        }

        line.Bulges.AddRange(bulges);
        Add(line);
    }

    internal void Block(string name, Vec2 at, double rotation, double scale) => Add(new CadInsertObject
    {
        Name = name,
        InsertionPoint = InPlane(at),
        RotationAngle = Degrees(rotation),
        ScaleX = scale,
        ScaleY = scale,
        ScaleZ = scale,
        ExtrusionDirection = Normal(),
    });

    /// <summary>Returns a text that is centred on a point.</summary>
    internal CadMText Text(string text, Vec2 at, double rotation, double height, string style)
    {
        Vec3 direction = _plane.Vector(new Vec3(Math.Cos(rotation), Math.Sin(rotation), 0));
        return new CadMText
        {
            Text = text,
            InsertionPoint = World(at),
            AttachmentPoint = CadAttachmentPoint.MiddleCenter,
            InitialTextHeight = height,
            TextStyleName = style,
            TextDirection = new Cad3DPoint(direction.X, direction.Y, direction.Z),
            ExtrusionDirection = Normal(),
        };
    }

    internal void Add(CadEntityBase entity)
    {
        entity.StoredLayer = "0";
        entity.StoredColor = Color;
        entity.LineWeight = LineWeight;
        entity.LineTypeName = LineType;
        entity.Transparency = TransparencyByBlock;
        Entities.Add(entity);
    }

    private static double Degrees(double radians) => radians * 180 / Math.PI;

    private Cad3DPoint World(Vec2 point)
    {
        Vec3 p = _plane.Point(new Vec3(point.X, point.Y, _elevation));
        return new Cad3DPoint(p.X, p.Y, p.Z);
    }

    private Cad3DPoint InPlane(Vec2 point) => new(point.X, point.Y, _elevation);

    // Each entity has a point of its own, since points can be changed.
    private Cad3DPoint Normal() => new(normal.X, normal.Y, normal.Z);
}
