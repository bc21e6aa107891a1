using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;

/// <summary>What vertices have in common.</summary>
public abstract partial class CadVertexBase : CadEntityBase
{
    internal CadVertexBase()
    {
    }

    /// <summary>Gets or sets the position; in object coordinates for a flat polyline, otherwise in world coordinates.
    /// Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint LocationPoint { get; set; } = new();

    /// <summary>Gets or sets the start width of the segment that begins here. Group code 40.</summary>
    [CadDouble(40, Optional = true)]
    public double StartWidth { get; set; }

    /// <summary>Gets or sets the end width of the segment that begins here. Group code 41.</summary>
    [CadDouble(41, Optional = true)]
    public double EndWidth { get; set; }

    /// <summary>Gets or sets the tangent of a quarter of the angle of the arc that begins here; 0 for a straight
    /// segment, negative clockwise. Group code 42.</summary>
    [CadDouble(42, Optional = true)]
    public double Bulge { get; set; }

    /// <summary>Gets or sets bits: 1 added by curve fitting, 2 has a tangent, 8 added by spline fitting, 16 frame of
    /// a spline, 32 in space, 64 of a mesh, 128 of a mesh of faces. Group code 70.</summary>
    [CadShort(70, Optional = true)]
    public short VertexFlags { get; set; }

    /// <summary>Gets or sets the tangent for curve fitting, in degrees. Group code 50.</summary>
    [CadAngle(50, Optional = true)]
    public double CurveFitTangent { get; set; }

    /// <inheritdoc/>
    internal override void BeginSubclass(ObjectExchange fields, string subclass)
    {
        if (subclass != "AcDbEntity" && this is not CadFaceRecord)
        {
            fields.BeginSubclass("AcDbVertex");
        }

        base.BeginSubclass(fields, subclass);
    }
}
