using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The boundary that a block reference is clipped to.</summary>
[CadSequence]
[CadMarkers(Leading = "AcDbFilter")]
[CadObject("SPATIAL_FILTER", Subclass = "AcDbSpatialFilter")]
[CadBits(
    "2RD[BS] BoundaryPoints", "3BD ExtrusionDirection", "3BD Origin", "BS IsBoundaryShown", "BS HasFrontClipping",
    "if HasFrontClipping != 0: BD FrontClippingDistance", "BS HasBackClipping",
    "if HasBackClipping != 0: BD BackClippingDistance", "BD[12] InverseTransform", "BD[12] Transform")]
public partial class CadSpatialFilter : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadSpatialFilter()
    {
    }

    /// <summary>Gets the boundary: two opposite corners of a rectangle or the corners of a polygon, in object
    /// coordinates. The list is live. Group codes 10, 20.</summary>
    [CadList(10, Count = 70)]
    public IList<Cad2DPoint> BoundaryPoints { get; } = new CheckedList<Cad2DPoint>("boundary_points");

    /// <summary>Gets or sets the unit normal of the plane of the boundary. Group codes 210, 220, 230.</summary>
    [Cad3DPoint(210)]
    public Cad3DPoint ExtrusionDirection { get; set; } = new(0, 0, 1);

    /// <summary>Gets or sets the origin of the boundary, in world coordinates. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11)]
    public Cad3DPoint Origin { get; set; } = new();

    /// <summary>Gets or sets whether the boundary is shown: 0 no, 1 yes. Group code 71.</summary>
    [CadShort(71)]
    public short IsBoundaryShown { get; set; } = 1;

    /// <summary>Gets or sets whether what is before a plane is left out: 0 no, 1 yes. Group code 72.</summary>
    [CadShort(72)]
    public short HasFrontClipping { get; set; }

    /// <summary>Gets or sets the distance of the front plane, in drawing units. Group code 40.</summary>
    [CadDouble(40)]
    [CadWhen("HasFrontClipping != 0")]
    public double FrontClippingDistance { get; set; }

    /// <summary>Gets or sets whether what is beyond a plane is left out: 0 no, 1 yes. Group code 73.</summary>
    [CadShort(73)]
    public short HasBackClipping { get; set; }

    /// <summary>Gets or sets the distance of the back plane, in drawing units. Group code 41.</summary>
    [CadDouble(41)]
    [CadWhen("HasBackClipping != 0")]
    public double BackClippingDistance { get; set; }

    /// <summary>Gets the inverse of the transform of the block reference: 12 numbers, row by row. The list is live.
    /// Group code 40.</summary>
    [CadList(40, Max = 12)]
    public List<double> InverseTransform { get; } = [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0];

    /// <summary>Gets the transform of the boundary: 12 numbers, row by row. The list is live. Group code 40.</summary>
    [CadList(40, Max = 12)]
    public List<double> Transform { get; } = [1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0];
}
