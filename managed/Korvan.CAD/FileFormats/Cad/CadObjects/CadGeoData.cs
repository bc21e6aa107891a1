using System;
using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>Where on Earth a drawing is.</summary>
[CadSequence]
[CadObject("GEODATA", Subclass = "AcDbGeoData")]
[CadBits(
    "ExchangeVersion()", "H HostBlockHandle", "BS CoordinateType", "2010+ 3BD DesignPoint", "2010+ 3BD ReferencePoint",
    "2010+ BD HorizontalUnitScale", "2010+ BL HorizontalUnits", "2010+ BD VerticalUnitScale",
    "2010+ BL VerticalUnits", "2010+ 3BD UpDirection", "2010+ 2RD NorthDirection", "2010+ BL ScaleEstimationMethod",
    "2010+ BD UserScaleFactor", "2010+ B DoSeaLevelCorrection", "2010+ BD SeaLevelElevation",
    "2010+ BD CoordinateProjectionRadius", "2010+ T CoordinateSystemDefinition", "2010+ T GeoRssTag",
    "-2007 ExchangeEarly()", "T ObservationFromTag", "T ObservationToTag", "T ObservationCoverageTag",
    "ExchangeMesh()", "-2007 ExchangeCivil()")]
public partial class CadGeoData : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadGeoData()
    {
    }

    /// <summary>Gets or sets the version of the data: 1 release 2009, 2 release 2010, 3 release 2013 and later. Group
    /// code 90.</summary>
    [CadInt(90)]
    public int Version { get; set; } = 3;

    /// <summary>Gets or sets the handle of the block of model space in hexadecimal. Group code 330.</summary>
    [CadHandle(330)]
    public string HostBlockHandle { get; set; } = "0";

    /// <summary>Gets or sets the kind of coordinates: 0 unknown, 1 a local grid, 2 a projected grid, 3 geographic.
    /// Group code 70.</summary>
    [CadShort(70)]
    public short CoordinateType { get; set; }

    /// <summary>Gets or sets the reference point in the drawing, in world coordinates. Group codes 10, 20,
    /// 30.</summary>
    [Cad3DPoint(10)]
    public Cad3DPoint DesignPoint { get; set; } = new();

    /// <summary>Gets or sets the reference point in the coordinate system; longitude, latitude and elevation for
    /// geographic ones. Group codes 11, 21, 31.</summary>
    [Cad3DPoint(11)]
    public Cad3DPoint ReferencePoint { get; set; } = new();

    /// <summary>Gets or sets the length of a horizontal unit, in metres. Group code 40.</summary>
    [CadDouble(40)]
    public double HorizontalUnitScale { get; set; } = 1;

    /// <summary>Gets or sets the horizontal unit, numbered as $INSUNITS. Group code 91.</summary>
    [CadInt(91)]
    public int HorizontalUnits { get; set; } = 6;

    /// <summary>Gets or sets the length of a vertical unit, in metres. Group code 41.</summary>
    [CadDouble(41)]
    public double VerticalUnitScale { get; set; } = 1;

    /// <summary>Gets or sets the vertical unit, numbered as $INSUNITS. Group code 92.</summary>
    [CadInt(92)]
    public int VerticalUnits { get; set; } = 6;

    /// <summary>Gets or sets the direction upwards. Group codes 210, 220, 230.</summary>
    [Cad3DPoint(210)]
    public Cad3DPoint UpDirection { get; set; } = new(0, 0, 1);

    /// <summary>Gets or sets the direction of north. Group codes 12, 22.</summary>
    [Cad2DPoint(12)]
    public Cad2DPoint NorthDirection { get; set; } = new(0, 1);

    /// <summary>Gets or sets how the scale of the grid is found: 1 none, 2 by the user, 3 at the reference point, 4
    /// prismoidal. Group code 95.</summary>
    [CadInt(95)]
    public int ScaleEstimationMethod { get; set; } = 1;

    /// <summary>Gets or sets the scale that the user stated. Group code 141.</summary>
    [CadDouble(141)]
    public double UserScaleFactor { get; set; } = 1;

    /// <summary>Gets or sets whether lengths are corrected to sea level. Group code 294.</summary>
    [CadBool(294)]
    public bool DoSeaLevelCorrection { get; set; }

    /// <summary>Gets or sets the elevation of the drawing above sea level, in metres. Group code 142.</summary>
    [CadDouble(142)]
    public double SeaLevelElevation { get; set; }

    /// <summary>Gets or sets the radius of the Earth, in metres. Group code 143.</summary>
    [CadDouble(143)]
    public double CoordinateProjectionRadius { get; set; }

    /// <summary>Gets or sets the definition of the coordinate system. Group codes 303, 301.</summary>
    public string CoordinateSystemDefinition { get; set; } = "";

    /// <summary>Gets or sets the tag of the position in news feeds. Group code 302.</summary>
    public string GeoRssTag { get; set; } = "";

    /// <summary>Gets or sets the tag of the start of an observation. Group code 305.</summary>
    public string ObservationFromTag { get; set; } = "";

    /// <summary>Gets or sets the tag of the end of an observation. Group code 306.</summary>
    public string ObservationToTag { get; set; } = "";

    /// <summary>Gets or sets the tag of the coverage of an observation. Group code 307.</summary>
    public string ObservationCoverageTag { get; set; } = "";

    /// <summary>Gets the points of the mesh that maps the drawing to the coordinate system, in the drawing. The list is
    /// live. Group codes 13, 23.</summary>
    public IList<Cad2DPoint> MeshSourcePoints { get; } = new CheckedList<Cad2DPoint>("mesh_source_points");

    /// <summary>Gets the points of the mesh in the coordinate system. The list is live. Group codes 14, 24.</summary>
    public IList<Cad2DPoint> MeshTargetPoints { get; } = new CheckedList<Cad2DPoint>("mesh_target_points");

    /// <summary>Gets the faces of the mesh: three indices of points for each. The list is live. Group codes 97, 98,
    /// 99.</summary>
    public List<int> MeshFaces { get; } = [];

    partial void OnExchange(ObjectExchange fields)
    {
        CoordinateSystemDefinition = fields.LongText(303, 301, CoordinateSystemDefinition);
        GeoRssTag = fields.Text(302, GeoRssTag);
        ObservationFromTag = fields.Text(305, ObservationFromTag);
        ObservationToTag = fields.Text(306, ObservationToTag);
        ObservationCoverageTag = fields.Text(307, ObservationCoverageTag);
        int points = fields.Count(93, MeshSourcePoints.Count);
        for (int i = 0; i < points; i++)
        {
            fields.Point(13, fields.Item(MeshSourcePoints, i));
            fields.Point(14, fields.Item(MeshTargetPoints, i));
        }

        int faces = fields.Count(96, MeshFaces.Count / 3);
        for (int i = 0; i < 3 * faces; i++)
        {
            fields.ItemAt(97 + (i % 3), MeshFaces, i);
        }
    }

    // Files before release 2010 have the first form, whatever the version of the object was.
    private void ExchangeVersion(BitExchange fields)
    {
        int version = fields.BitLong(fields.Release < 2010 ? 1 : Version);
        Version = fields.IsReading ? version : Version;
    }

    // The form of the first release that had such data; its other fields are not kept.
    private void ExchangeEarly(BitExchange fields)
    {
        fields.Point3(ReferencePoint);
        HorizontalUnits = fields.BitLong(HorizontalUnits);
        fields.Point3(DesignPoint);
        fields.Point3(new Cad3DPoint());
        fields.Point3(UpDirection);
        fields.BitDouble(0);
        fields.Point3(new Cad3DPoint(1, 1, 1));
        CoordinateSystemDefinition = fields.Text(CoordinateSystemDefinition);
        GeoRssTag = fields.Text(GeoRssTag);
        HorizontalUnitScale = fields.BitDouble(HorizontalUnitScale);
        fields.Text("");
        fields.Text("");
    }

    private void ExchangeCivil(BitExchange fields)
    {
        fields.Bit(true);
        fields.Bit(false);
        for (int i = 0; i < 2; i++)
        {
            fields.RawDouble(ReferencePoint.Y);
            fields.RawDouble(ReferencePoint.X);
        }

        fields.BitLong(0);
        fields.BitLong(0);
        fields.RawPoint2(new Cad2DPoint());
        fields.RawPoint2(new Cad2DPoint());
        fields.Bit(false);
        double north = Math.Atan2(NorthDirection.X, NorthDirection.Y);
        fields.BitDouble(north * 180 / Math.PI);
        fields.BitDouble(north);
        ScaleEstimationMethod = fields.BitLong(ScaleEstimationMethod);
        UserScaleFactor = fields.BitDouble(UserScaleFactor);
        DoSeaLevelCorrection = fields.Bit(DoSeaLevelCorrection);
        SeaLevelElevation = fields.BitDouble(SeaLevelElevation);
        CoordinateProjectionRadius = fields.BitDouble(CoordinateProjectionRadius);
    }

    private void ExchangeMesh(BitExchange fields)
    {
        int points = fields.CountLong(MeshSourcePoints.Count);
        for (int i = 0; i < points; i++)
        {
            fields.RawPoint2(fields.Item(MeshSourcePoints, i));
            fields.RawPoint2(fields.Item(MeshTargetPoints, i));
        }

        int corners = 3 * fields.CountLong(MeshFaces.Count / 3);
        fields.Resize(MeshFaces, corners);
        for (int i = 0; i < corners; i++)
        {
            MeshFaces[i] = fields.BitLong(MeshFaces[i]);
        }
    }
}
