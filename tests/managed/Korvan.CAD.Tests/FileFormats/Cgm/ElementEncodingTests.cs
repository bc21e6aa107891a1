using System;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;
using Korvan.CAD.FileFormats.Cgm.Export;
using Korvan.CAD.FileFormats.Cgm.Import;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cgm;

/// <summary>Elements as bytes and words that were put together by hand from ISO/IEC 8632-3 and 8632-4.</summary>
public class ElementEncodingTests
{
    private static readonly CgmColor Red = new(Color.FromArgb(255, 0, 0));

    /// <summary>A command at the beginning of a metafile: whole coordinates of 16 bits, real numbers with a fixed point,
    /// colours by number.</summary>
    public static readonly TheoryData<Command, string, string> Elements = new()
    {
        { new BeginMetafile("ab"), "0023 02 6162 00", "BEGMF 'ab';" },
        { new EndPicture(), "00A0", "ENDPIC;" },
        { new MetafileVersion(3), "1022 0003", "MFVERSION 3;" },
        { new IntegerPrecision { Precision = 32 }, "1082 0020", "INTEGERPREC -2147483648 2147483647;" },
        { new RealPrecision { Value = Precision.Floating64 }, "10A6 0000 000C 0034", "" },
        { new ColourValueExtent(), "1146 000000 FFFFFF", "COLRVALUEEXT 0 0 0 255 255 255;" },
        { new MetafileElementList { Elements = ["DRAWINGPLUS", "LINE"] }, "116A 0002 FFFF 0001 0004 0001", "MFELEMLIST 'DRAWINGPLUS LINE';" },
        { new FontList { Fonts = ["a", "bc"] }, "11A5 01 61 02 6263 00", "FONTLIST 'a' 'bc';" },
        { new ScalingMode { Value = ScalingMode.Mode.Metric, MetricScaleFactor = 0.5 }, "2026 0001 3F000000", "SCALEMODE METRIC 0.5;" },
        { new LineWidthSpecificationMode { Value = SpecificationMode.Absolute }, "2062 0000", "LINEWIDTHMODE ABS;" },
        { new BackgroundColour(Red), "20E3 FF0000 00", "BACKCOLR 255 0 0;" },
        { new VdcIntegerPrecision { Precision = 16 }, "3022 0010", "VDCINTEGERPREC -32768 32767;" },
        { new ClipIndicator(false), "30C2 0000", "CLIP OFF;" },
        { new Polyline([new(1, 2), new(-1, 256)]), "4028 0001 0002 FFFF 0100", "LINE (1,2) (-1,256);" },
        { new Text(new CgmPoint(1, 2), "Hi"), "4089 0001 0002 0001 02 4869 00", "TEXT (1,2) FINAL 'Hi';" },
        {
            new PolygonSet { Points = [new(1, 2), new(3, 4)], Flags = [PolygonSet.EdgeFlag.Visible, PolygonSet.EdgeFlag.CloseInvisible] },
            "410C 0001 0002 0001 0003 0004 0002", "POLYGONSET (1,2) VIS (3,4) CLOSEINVIS;"
        },
        {
            new GeneralizedDrawingPrimitive { Identifier = -1, Points = [new(1, 2)], Data = [0x41] },
            "414A FFFF 0001 0001 0002 01 41", "GDP -1 (1,2) 'A';"
        },
        { new CircleElement(new CgmPoint(1, 2), 3), "4186 0001 0002 0003", "CIRCLE (1,2) 3;" },
        {
            new CircularArcCentreClose { Centre = new(1, 2), StartX = 3, StartY = 4, EndX = 5, EndY = 6, Radius = 7, Closure = ClosureType.Chord },
            "4210 0001 0002 0003 0004 0005 0006 0007 0001", "ARCCTRCLOSE (1,2) 3 4 5 6 7 CHORD;"
        },
        { new LineType { Type = DashType.Dot }, "5042 0003", "LINETYPE 3;" },
        { new LineWidth(1.5), "5064 0001 8000", "LINEWIDTH 1.5;" },
        { new LineColour(new CgmColor(4)), "5081 04 00", "LINECOLR 4;" },
        { new InteriorStyle { Value = InteriorStyle.Style.Empty }, "52C2 0004", "INTSTYLE EMPTY;" },
        {
            // Without a mode for interiors their sizes are coordinates, as they were before there was one.
            new PatternSize { HeightX = 0, HeightY = 2, WidthX = 3, WidthY = 0 }, "5428 0000 0002 0003 0000", "PATSIZE 0 2 3 0;"
        },
        { new ColourTable(2, [Red]), "5444 02 FF0000", "COLRTABLE 2 255 0 0;" },
        {
            new AspectSourceFlags { Infos = [new(AspectSourceFlags.ASFType.All, AspectSourceFlags.ASFValue.Bundled)] },
            "5464 01FF 0001", "ASF ALL BNDLD;"
        },
        { new CAD.FileFormats.Cgm.Commands.LineCap { CapIndex = 2, DashCapIndex = 3 }, "54A4 0002 0003", "LINECAP 2 3;" },
        { new Escape { Identifier = 5, Data = [0x41, 0x42] }, "6025 0005 02 4142 00", "ESCAPE 5 'AB';" },
        { new MessageCommand { Action = MessageCommand.ActionType.Action, Message = "x" }, "7024 0001 01 78", "MESSAGE ACTION 'x';" },
        {
            new InheritanceFilter { Filters = [InheritanceFilter.Filter.LineColour, InheritanceFilter.Filter.All] },
            "8046 0003 002D 0001", "INHFILTER LINECOLR ALL SEG;"
        },
        {
            new SegmentTransformation { SegmentIdentifier = 1, TranslationX = 5, TranslationY = 6 },
            "8096 0001 00010000 00000000 00000000 00010000 0005 0006", "SEGTRAN 1 1.0 0.0 0.0 1.0 5 6;"
        },
    };

    public static readonly TheoryData<Command, string> Unwritable = new()
    {
        { new IntegerPrecision { Precision = 12 }, "12 bits" },
        { new VdcIntegerPrecision { Precision = 8 }, "8 bits" },
        { new CellArray { LocalPrecision = 3 }, "3 bits" },
        { new RealPrecision { Value = (Precision)4 }, "precision 4" },
        { new BeginTileArray { CellPathDirection = 45 }, "45 degrees" },
        { new ColourModel { Value = (ColourModel.Model)9 }, "index 9" },
        { new PolygonSet { Points = [new CgmPoint()] }, "flags has 0 items" },
        { new CharacterSetList { Designations = ["B"] }, "designations has 1 items" },
        { new HatchStyleDefinition { GapWidths = [1, 2, 3] }, "line_types has 1 items, but 3" },
        { new NonUniformBSpline { ControlPoints = [new CgmPoint()], Knots = [1] }, "knots has 1 items, but 5" },
        { new NonUniformRationalBSpline { Knots = [0, 0, 1, 1], Weights = [1] }, "weights has 1 items, but 0" },
        { new NonUniformBSpline { Order = -2, ControlPoints = [new CgmPoint()] }, "-1 are needed" },
        { new ColourCalibration { RedComponents = [1, 2], RedValues = [0, 1] }, "green_components has 0 items, but 2" },
        { new ColourValueExtent { Minimum = [0] }, "minimum has 1 items, but 3" },
        { new InterpolatedInterior { Style = 2 }, "reference_geometry has 2 items, but 4" },
        { new AspectSourceFlags { Infos = [new((AspectSourceFlags.ASFType)18, AspectSourceFlags.ASFValue.Bundled)] }, "value 18" },
        { new MetafileElementList { Elements = ["LIME"] }, "'LIME'" },
    };

    public static readonly TheoryData<string, string> Damaged = new()
    {
        { "1082 000C", "12 bits" },
        { "3022 0008", "8 bits" },
        { "1262 0009", "index 9" },
        { "1304 0003 01 61", "UI32" },
        { "5464 0012 0001", "value 18" },
        { "8040", "selection setting is missing" },
        { "8044 0003 0002", "selection setting is missing" },
        { "430C 0002 7FFF 0001 0001 0001 0001", "32767 items" },
        { "4304 7FFF FFFF", "-1" },
    };

    [Theory]
    [MemberData(nameof(Elements))]
    public void Elements_are_written_as_the_standard_has_them(Command command, string bytes, string words)
    {
        Assert.Equal(bytes.Replace(" ", ""), Binary(command));
        if (words.Length > 0)
        {
            var stream = new MemoryStream();
            new DefaultClearTextWriter(stream).WriteCommand(command);
            Assert.Equal(words, Plain(Encoding.ASCII.GetString(stream.ToArray())));
        }
    }

    [Theory]
    [MemberData(nameof(Unwritable))]
    public void What_no_file_can_hold_is_not_written(Command command, string message)
    {
        var stream = new MemoryStream();
        ImageSaveException failure = Assert.Throws<ImageSaveException>(() => new DefaultBinaryWriter(stream).WriteCommand(command));
        Assert.Contains(message, failure.Message);
        Assert.Equal(0, stream.Length);
    }

    [Theory]
    [MemberData(nameof(Damaged))]
    public void Parameters_that_make_no_sense_are_named(string bytes, string message)
    {
        using var reader = new DefaultBinaryReader(new MemoryStream(Convert.FromHexString(bytes.Replace(" ", ""))));
        ImageLoadException failure = Assert.Throws<ImageLoadException>(reader.ReadCommand);
        Assert.Contains(message, failure.Message);
    }

    [Fact]
    public void Gaps_are_passed_over()
    {
        using var reader = new DefaultBinaryReader(new MemoryStream(Convert.FromHexString("0003AABBCC0000A00040")));
        Assert.Equal([typeof(NoOp), typeof(EndPicture), typeof(EndMetafile)], Enumerable.Range(0, 3).Select(_ => reader.ReadCommand()?.GetType()));
        Assert.Empty(reader.Messages);
    }

    [Fact]
    public void What_has_no_word_is_no_clear_text()
    {
        var stream = new MemoryStream();
        var writer = new DefaultClearTextWriter(stream);
        Assert.Throws<InvalidOperationException>(() => new NoOp().WriteAsClearText(writer));
        Assert.Equal(0, stream.Length);
    }

    [Fact]
    public void Modes_and_precisions_change_how_later_elements_are_coded()
    {
        var stream = new MemoryStream();
        var writer = new DefaultBinaryWriter(stream);
        foreach (Command command in (Command[])
            [
                new LineWidthSpecificationMode { Value = SpecificationMode.Absolute }, new IndexPrecision { Precision = 8 },
                new ColourSelectionMode { Value = ColourSelectionMode.Type.Direct }, new VdcIntegerPrecision { Precision = 32 },
            ])
        {
            writer.WriteCommand(command);
        }

        stream.SetLength(0);
        writer.WriteCommand(new LineRepresentation { BundleIndex = 2, Width = 3, Color = Red });
        Assert.Equal("2169 02 01 00000003 FF0000 00".Replace(" ", ""), Convert.ToHexString(stream.ToArray()));
    }

    [Fact]
    public void Replaced_defaults_hold_in_each_picture_and_what_a_picture_changes_ends_with_it()
    {
        var stream = new MemoryStream();
        var writer = new DefaultBinaryWriter(stream);
        writer.WriteCommand(new MetafileDefaultsReplacement { Commands = [new ColourSelectionMode { Value = ColourSelectionMode.Type.Direct }] });
        Assert.Equal(2, WidthOfColor());
        writer.WriteCommand(new BeginPicture("direct"));
        Assert.Equal(4, WidthOfColor());
        writer.WriteCommand(new ColourSelectionMode());
        Assert.Equal(2, WidthOfColor());
        writer.WriteCommand(new BeginPicture("direct again"));
        Assert.Equal(4, WidthOfColor());
        writer.WriteCommand(new BeginMetafile("another one"));
        Assert.Equal(2, WidthOfColor());

        int WidthOfColor()
        {
            stream.SetLength(0);
            writer.WriteCommand(new LineColour(writer.State.HasIndexedColors ? new CgmColor(1) : Red));
            return (int)stream.Length - 2;
        }
    }

    [Fact]
    public void Factors_bound_the_colours_of_other_models()
    {
        var stream = new MemoryStream();
        var writer = new DefaultBinaryWriter(stream);
        writer.WriteCommand(new ColourModel { Value = ColourModel.Model.CieLab });
        writer.WriteCommand(new ColourValueExtent { Scales = [0.5, 1, 2], Offsets = [0, -128, 3] });
        stream.Position = 0;
        using var reader = new DefaultBinaryReader(stream);
        reader.ReadCommand();
        ColourValueExtent extent = Assert.IsType<ColourValueExtent>(reader.ReadCommand());
        Assert.Equal([0.5, 1, 2], extent.Scales);
        Assert.Equal([0, -128, 3], extent.Offsets);
    }

    [Fact]
    public void Bezier_curves_share_points_only_where_they_are_continuous()
    {
        CgmPoint[] points = [.. Enumerable.Range(0, 8).Select(i => new CgmPoint(i, 0))];
        Assert.Equal([0, 4], Starts(1));
        Assert.Equal([0, 3], Starts(2));

        double[] Starts(int continuity)
        {
            var command = new PolyBezier { ContinuityIndicator = continuity, Points = [.. points] };
            return [.. command.GetCurves().Select(curve => curve.Start.X)];
        }
    }

    private static string Binary(Command command)
    {
        var stream = new MemoryStream();
        new DefaultBinaryWriter(stream).WriteCommand(command);
        return Convert.ToHexString(stream.ToArray());
    }

    // Which quotes, how many blanks and how many digits is left to whoever writes.
    private static string Plain(string words) =>
        string.Join(' ', words.Replace('"', '\'').Replace(", ", ",").Split((char[]?)null, StringSplitOptions.RemoveEmptyEntries));
}
