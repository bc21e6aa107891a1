using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;

/// <summary>What polylines with vertex entities have in common.</summary>
public abstract partial class CadPolylineBase : CadExtrudedEntityBase
{
    internal CadPolylineBase()
    {
        Vertices = new EntityList<CadVertexBase>("vertices", this);
    }

    /// <summary>Gets or sets whether vertices follow; always 1. Group code 66.</summary>
    [CadShort(66)]
    public short AttributesFlag { get; set; } = 1;

    /// <summary>Gets or sets the elevation of a flat polyline in Z; X and Y are 0. Group codes 10, 20, 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint Elevation { get; set; } = new();

    /// <summary>Gets or sets properties of the polyline. Group code 70.</summary>
    [CadShort(70, Optional = true)]
    public CadPolylineFlag Flag { get; set; }

    /// <summary>Gets or sets the start width of segments that state none. Group code 40.</summary>
    [CadDouble(40, Optional = true)]
    public double StartWidth { get; set; }

    /// <summary>Gets or sets the end width of segments that state none. Group code 41.</summary>
    [CadDouble(41, Optional = true)]
    public double EndWidth { get; set; }

    /// <summary>Gets or sets the number of vertices along M; of a mesh of faces the number of its vertices. Group
    /// code 71.</summary>
    [CadShort(71, Optional = true)]
    public short MeshMVertexCount { get; set; }

    /// <summary>Gets or sets the number of vertices along N; of a mesh of faces the number of its faces. Group code
    /// 72.</summary>
    [CadShort(72, Optional = true)]
    public short MeshNVertexCount { get; set; }

    /// <summary>Gets or sets the smoothed density along M. Group code 73.</summary>
    [CadShort(73, Optional = true)]
    public short SurfaceMDensity { get; set; }

    /// <summary>Gets or sets the smoothed density along N. Group code 74.</summary>
    [CadShort(74, Optional = true)]
    public short SurfaceNDensity { get; set; }

    /// <summary>Gets or sets the smoothing: 0 none, 5 quadratic, 6 cubic B-spline, 8 Bezier. Group code 75.</summary>
    [CadShort(75, Optional = true)]
    public short SurfaceType { get; set; }

    /// <summary>Gets the vertices. The list is live.</summary>
    public IList<CadVertexBase> Vertices { get; }

    /// <summary>Gets or sets the entity that ends the vertices.</summary>
    public CadSeqend? Seqend { get; set; }

    /// <summary>Gets whether the last vertex is joined to the first.</summary>
    public bool IsClosed => (Flag & CadPolylineFlag.Closed) != 0;

    /// <summary>Creates a vertex of the kind that this polyline has.</summary>
    internal abstract CadVertexBase CreateVertex(int flags);

    /// <summary>Carries the references to the vertices.</summary>
    private protected void ExchangeVertices(BitExchange fields)
    {
        fields.ChildCount(true);
        fields.Children(this);
    }
}
