using System;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.Linq;
using System.Text;
using System.Text.RegularExpressions;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.CadObjects.MLineStyleObject;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.ImageOptions;
using Xunit;
using Xunit.Abstractions;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Objects;

/// <summary>Whatever can be set on a new object is there again after it was written to the records of each release
/// and read, but for what the table says.</summary>
public partial class PropertyLossTests(ITestOutputHelper output)
{
    private const string Any = "20..";
    private const string Before2004 = "2000";
    private const string Before2007 = "200[04]";
    private const string Before2013 = "20(00|04|10)";
    private const string Before2018 = "20(00|04|10|13)";
    private const string Newer = "the release does not have it";
    private const string Bit = "a flag, of one bit";
    private const string Flat = "one elevation for all";
    private const string Other = "what the type of the entity does not have is not stored";
    private const string Follows = "it follows from other values";
    private const string Conflict = "the values exclude one another, so that one of them counts";

    // Release, type and property, and reason.
    private static readonly (string Release, string What, string Reason)[] Exceptions =
    [
        (Any, @"Dimension\w*\.InsertionPoint|LineAngularDimension\.ArcPoint|\.(Second|Third|Fourth)Point = ", Flat),
        (Any, @"^CadText\.SecondAlig|ContextData\.TextPoint|^Cad(Polyline|Hatch)\.Elevation", Flat),
        (Any, @"ModelerFormatVersion|CadAcadProxyEntity\.|CadVisualStyle\.Form|ViewportId", Follows),
        (Any, @"AssociatedImageHandle|^CadMultiLine\.StyleHandle|^CadAcDbAssoc2dConstraintGroup\.NodeCount", Follows),
        (Any, @"\.(FitOption|TextMovement|HasLeader|IsPartial|Explodability|HistoryFlags|BlendCrease|IsLoaded) ", Bit),
        (Any, @"^CadAcDbAssoc2dConstraintGroup\.GroupFlags ", Bit),
        (Any, @"\.(DoubleFlag|AssociativityFlag|ArrowheadFlag|HookLine(Direction|Flag)|Clip(Mode|pingState)) ", Bit),
        (Any, @"\.(Ucs\w+|ViewportStatus) ", Bit),
        (Any, @"^CadDimensionStyleTable\.Dim(alt|fxlon|lim|sah|sd.|se.|soxd|ti.|tofl|toh|tol|txtdir\w+|upt) ", Bit),
        (Any, @"^CadDimensionStyleTable\.(Dimblk.?Name|Dimfit|Dimunit) ", "release 14 and before have it"),
        (Any, @"Color(Id|ToUse) = |CadSection\.IndicatorIndex|CadLight\.PlainColor", "that of the nearest colour"),
        (Any, @"\.ValueName ", "programs leave it empty"),
        (Any, @"Parameter\.GripIds ", "always four"),
        (Any, @"^CadPoly\w+\.(Elevation|(Start|End)Width|ExtrusionDirection|Surface\w+|Thickness|Mesh\w+) ", Other),
        (Any, @"^CadAlignedDimension\.Rotation|^CadHatch\.(PixelSize|Pattern\w+) ", Other),
        (Any, @"^Cad(Helix|Spline)\.((Start|End)Tangent|ExtrusionDirection|FitTolerance) ", Other),
        (Any, @"^CadAc(idBlock\w+|DbAssoc2dCon\w+) is |^CadWipeoutRasterImage is ", "databases have no such type"),
        (Any, @"^CadAcDbMTextObjectContextData\.ColumnHeights|^CadVisualStyle\.(ValueSources|StyleApplies)", Conflict),
        (Any, @"^CadMaterial\.(\w+ColorValue|\w+Map(FileName|Transform)) ", Conflict),
        (Any, @"^CadAcDbAssocPersSubentManager is |^CadTableEntity is |^CadDimAssoc: ImageSaveException", Conflict),
        (Any, @"^CadMLeader\.(BlockRecord|Color|HasBlock|Location|Normal|Rotation|Scale|Transformation)", Conflict),
        (Any, @"^CadTable\w*\.Key ", "values of fields have it"),
        (Any, @"^CadField\.(Format|Key) ", "values have a format of their own since release 2007"),
        (Any, @"^CadLayerTable\.LineWeight ", "there is no such line weight"),
        (Any, @"^CadOle2Frame\.", "in the data of the document"),
        (Any, @"^Cad\w+Surface\.\w+Transform ", "a matrix has 16 numbers"),
        (Any, @"^CadMText\.TextRotation", "the direction of the text has it"),
        (Any, @"^CadShape\.ShapeName ", "the file of shapes has the names; drawings have numbers"),
        (Any, @"^CadAttDef: ", "several lines are in the data of a text"),
        ("201.", @"^CadLeader\.LastVertexOffset", "release 2010 no longer has it"),
        ("201.", @"^CadTableStyle\.(FlowDirection|Is\w+Suppressed) ", "tables override it since release 2010"),
        (Before2018, @"^CadSectionViewStyle\.(DisplayName|ViewStyleFlags) ", Newer),
        (Before2013, @"^CadMLeader(StyleObject)?\.IsLeaderExtendedToText ", Newer),
        (Before2007, @"\.(Material|ShadowMode|MaterialHandle|ShadePlotHandle|InnerClipPoints|Version) ", Newer),
        (Before2007, @"^CadBlockTableObject\.|^CadDimensionStyleTable\.Dim(arc|fxl|jog|ltex|ltype|tfill)", Newer),
        (Before2007, @"^CadMLeader\.", Newer),
        (Before2007, @"^CadGeoData\.|\.(FormattedText|Unit|Format) |^CadMLeaderStyleObject\.Text", Newer),
        (Before2007, @"^Cad(Material|VisualStyle)\.|^CadMText\.ReferenceRectangleHeight ", Newer),
        (Before2004, @"\.(\w*ColorName|\w*ColorValue|Transparency) |^CadHatch\.(Gradient\w+|\w+Gradient) ", Newer),
        (Before2004, @"^CadMLeaderStyleObject\.\w+Color |^CadMText\.|^CadPlotSettings\.ShadePlot", Newer),
    ];

    [Theory]
    [InlineData(CadAcadVersion.AC1015)]
    [InlineData(CadAcadVersion.AC1018)]
    [InlineData(CadAcadVersion.AC1024)]
    [InlineData(CadAcadVersion.AC1027)]
    [InlineData(CadAcadVersion.AC1032)]
    public void Each_property_comes_back(CadAcadVersion version)
    {
        string release = DrawingRelease.Year(version).ToString(CultureInfo.InvariantCulture);
        List<string> unknown = [];
        foreach (object[] type in PropertyRoundTripTests.Entities.Concat(PropertyRoundTripTests.Objects)
            .Concat(PropertyRoundTripTests.Records))
        {
            foreach (string line in Losses((Type)type[0], version))
            {
                bool isKnown = Array.Exists(Exceptions, known => Regex.IsMatch(release, known.Release)
                    && Regex.IsMatch(line, known.What));
                output.WriteLine($"{release} {(isKnown ? "known" : "new")} {line}");
                if (!isKnown)
                {
                    unknown.Add(line);
                }
            }
        }

        Assert.Empty(unknown.Take(20));
    }

    /// <summary>A drawing that was saved as DWG is the one that it was, whatever the release cannot hold.</summary>
    [Theory]
    [InlineData(CadAcadVersion.AC1015)]
    [InlineData(CadAcadVersion.AC1024)]
    [InlineData(CadAcadVersion.AC1032)]
    public void Saving_changes_nothing(CadAcadVersion version)
    {
        List<string> changed = [];
        foreach (object[] type in PropertyRoundTripTests.Entities.Concat(PropertyRoundTripTests.Objects)
            .Concat(PropertyRoundTripTests.Records))
        {
            changed.AddRange(Changes((Type)type[0], version, isFilled: false));
            changed.AddRange(Changes((Type)type[0], version, isFilled: true));
        }

        changed.ForEach(output.WriteLine);
        Assert.Empty(changed);
    }

    private static IEnumerable<string> Changes(Type type, CadAcadVersion version, bool isFilled)
    {
        CadBaseObject item = (CadBaseObject)Activator.CreateInstance(type)!;
        if (isFilled)
        {
            PropertyRoundTripTests.Fill(item);
            Limit(item);
            if (item is CadEntityBase entity)
            {
                entity.ColorName = ""; // an object is added for it
            }
        }

        using CadImage image = new();
        AddTo(image, item);
        DxfOptions text = new() { Version = DxfOutputVersion.R2018 };
        string[] before, after;
        try
        {
            // What has no handle yet gets one.
            Save(image, text);
            before = Save(image, text).Split('\n');
            Save(image, new DwgOptions { Version = version });
            after = Save(image, text).Split('\n');
        }
        catch (ImageSaveException)
        {
            return [];
        }

        return before.Zip(after).Where(static pair => pair.First != pair.Second).Take(4)
            .Select(pair => $"{type.Name}: {pair.First.Trim()} is now {pair.Second.Trim()}")
            .Concat(before.Length == after.Length ? [] : [$"{type.Name} has other groups"]);
    }

    private static string Save(CadImage image, ImageOptionsBase options)
    {
        using MemoryStream stream = new();
        image.Save(stream, options);
        return Encoding.Latin1.GetString(stream.ToArray());
    }

    private static List<string> Losses(Type type, CadAcadVersion version)
    {
        CadBaseObject item = (CadBaseObject)Activator.CreateInstance(type)!;
        if (!item.HasAllBits)
        {
            return [];
        }

        PropertyRoundTripTests.Fill(item);
        Limit(item);
        CadImage image = new();
        AddTo(image, item);
        string[] expected = PropertyRoundTripTests.Describe(item);
        string[] names = [.. Referred().Matches(string.Join(' ', expected)).Select(static one => one.Value)];
        foreach (string name in names.Distinct())
        {
            AddReferred(image, name);
        }

        CadBaseObject? again;
        LoadOptions options = new();
        try
        {
            (CadDrawing drawing, _) = ObjectRoundTripTests.WriteAndRead(image.Drawing, version, options);
            again = DrawingWalk.All(drawing).FirstOrDefault(one => one.Handle == item.Handle);
        }
        catch (Exception error)
        {
            return [$"{type.Name}: {error.GetType().Name} {error.Message}"];
        }

        if (again?.GetType() != type)
        {
            string defects = string.Join(' ', options.Defects);
            return [$"{type.Name} is {again?.GetType().Name ?? "missing"} {defects}"];
        }

        string[] actual = PropertyRoundTripTests.Describe(again);
        return expected.Length != actual.Length
            ? [$"{type.Name}: not {string.Join(',', expected.Except(actual))}"]
            : [.. expected.Zip(actual).Where(static pair => pair.First != pair.Second)
                .Select(pair => $"{type.Name}.{pair.First} is {pair.Second.Split('=')[^1].Trim()}")];
    }

    // Values that are none of the format, or exclude others.
    private static void Limit(CadBaseObject item)
    {
        if (item is CadEntityBase entity)
        {
            entity.LineWeight = 25;
            entity.Visible = 1;
        }

        switch (item)
        {
            case CadMesh mesh:
                mesh.EdgeList.RemoveAt(2);
                break;
            case CadMText text:
                text.BackgroundFillSetting = (CadFillSetting)1;
                break;
            case CadHatch hatch:
                hatch.SolidFillFlag = 0;
                break;
            case CadSpline spline:
                spline.FitPoints.Clear();
                break;
        }
    }

    private static void AddTo(CadImage image, CadBaseObject item)
    {
        switch (item)
        {
            case CadEntityBase entity:
                image.AddEntity(entity);
                break;
            case CadObjectBase plain:
                plain.ObjectHandle = "ABC";
                image.Objects.Add(plain);
                break;
            case CadSymbolTableGroupCodes record:
                record.Name = "Mine";
                image.BlockEntities.Add(new CadBlockEntity { Name = "Mine" });
                PropertyRoundTripTests.Add(image, record);
                break;
        }
    }

    // Properties lead to these handles and names.
    private static void AddReferred(CadImage image, string name)
    {
        image.Objects.Add(new CadXRecord { ObjectHandle = name });
        image.Layers.Add(new CadLayerTable { Name = name });
        image.LineTypes.Add(new CadLineTypeTableObject { Name = name });
        image.Styles.Add(new CadStyleTableObject { Name = name });
        image.DimensionStyles.Add(new CadDimensionStyleTable { Name = name });
        image.BlockEntities.Add(new CadBlockEntity { Name = name });
        image.Views.Add(new CadViewTableObject { Name = name });
        image.Objects.Add(new CadMLineStyleObject { StyleName = name });
    }

    [GeneratedRegex("\\bA[0-9A-F]{2}\\b")]
    private static partial Regex Referred();
}
