using System;
using System.Globalization;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>No operation; padding in binary files. Its content is not kept, and clear text has no such
/// element.</summary>
[CgmCommand(ClassCode.DelimiterElement, 0, "", Default = "the element, which has no parameters")]
public sealed partial class NoOp : Command
{

    internal override void Exchange(ParameterExchange x)
    {
        if (x.IsReading && x.HasMore)
        {
            x.Bits(null);
        }
    }
}

/// <summary>Begins the metafile.</summary>
[CgmCommand(DelimiterElement.BeginMetafile, "BEGMF", Default = "a metafile without name")]
[CgmConstructor(nameof(Identifier))]
public sealed partial class BeginMetafile : Command
{
    /// <summary>Gets or sets the name of the metafile.</summary>
    [CgmString]
    public string Identifier { get; set; } = "";

    internal override void Apply(CodingState state) => state.BeginMetafile();
}

/// <summary>Ends the metafile.</summary>
[CgmCommand(DelimiterElement.EndMetafile, "ENDMF")]
public sealed partial class EndMetafile : Command;

/// <summary>Begins a picture and its descriptor; all attributes return to the defaults.</summary>
[CgmCommand(DelimiterElement.BeginPicture, "BEGPIC", Default = "a picture without name")]
[CgmConstructor(nameof(Identifier))]
public sealed partial class BeginPicture : Command
{
    /// <summary>Gets or sets the name of the picture.</summary>
    [CgmString]
    public string Identifier { get; set; } = "";

    internal override void Apply(CodingState state) => state.BeginPicture();
}

/// <summary>Ends the picture descriptor and begins the body of the picture.</summary>
[CgmCommand(DelimiterElement.BeginPictureBody, "BEGPICBODY")]
public sealed partial class BeginPictureBody : Command;

/// <summary>Ends a picture.</summary>
[CgmCommand(DelimiterElement.EndPicture, "ENDPIC")]
public sealed partial class EndPicture : Command;

/// <summary>Begins a segment: a part that is stored and can be copied.</summary>
[CgmCommand(DelimiterElement.BeginSegment, "BEGSEG")]
public sealed partial class BeginSegment : Command
{
    /// <summary>Gets or sets the name of the segment, an integer.</summary>
    [CgmName]
    public int Identifier { get; set; }
}

/// <summary>Ends a segment.</summary>
[CgmCommand(DelimiterElement.EndSegment, "ENDSEG")]
public sealed partial class EndSegment : Command;

/// <summary>Begins a closed figure: the primitives up to its end bound one area.</summary>
[CgmCommand(DelimiterElement.BeginFigure, "BEGFIGURE")]
public sealed partial class BeginFigure : Command;

/// <summary>Ends a closed figure, which is filled and edged as one area.</summary>
[CgmCommand(DelimiterElement.EndFigure, "ENDFIGURE")]
public sealed partial class EndFigure : Command;

/// <summary>Begins a region that later drawing is clipped to or shielded from.</summary>
[CgmCommand(DelimiterElement.BeginProtectionRegion, "BEGPROTREGION")]
public sealed partial class BeginProtectionRegion : Command
{
    /// <summary>Gets or sets the index of the region, from 1.</summary>
    [CgmIndex]
    public int RegionIndex { get; set; } = 1;
}

/// <summary>Ends the outline of a protection region.</summary>
[CgmCommand(DelimiterElement.EndProtectionRegion, "ENDPROTREGION")]
public sealed partial class EndProtectionRegion : Command;

/// <summary>Begins a compound line, which the lines up to its end form.</summary>
[CgmCommand(DelimiterElement.BeginCompoundLine, "BEGCOMPOLINE")]
public sealed partial class BeginCompoundLine : Command;

/// <summary>Ends a compound line, which is drawn as one line.</summary>
[CgmCommand(DelimiterElement.EndCompoundLine, "ENDCOMPOLINE")]
public sealed partial class EndCompoundLine : Command;

/// <summary>Begins a compound text path, which the lines up to its end form.</summary>
[CgmCommand(DelimiterElement.BeginCompoundTextPath, "BEGCOMPOTEXTPATH")]
public sealed partial class BeginCompoundTextPath : Command;

/// <summary>Ends a compound text path.</summary>
[CgmCommand(DelimiterElement.EndCompoundTextPath, "ENDCOMPOTEXTPATH")]
public sealed partial class EndCompoundTextPath : Command;

/// <summary>Begins a tile array: tiles of equal size that form one image.</summary>
[CgmCommand(DelimiterElement.BeginTileArray, "BEGTILEARRAY")]
public sealed partial class BeginTileArray : Command
{
    private static readonly int[] PathDirections = [0, 90, 180, 270];
    private static readonly int[] LineDirections = [90, 270];

    /// <summary>Gets or sets the corner of the image where the first cell lies.</summary>
    [CgmPoint]
    public CgmPoint Position { get; set; } = new();

    /// <summary>Gets or sets the direction of rows, in degrees counterclockwise from the X axis: 0, 90, 180 or
    /// 270.</summary>
    [CgmCustom]
    public int CellPathDirection { get; set; }

    /// <summary>Gets or sets the direction from row to row, in degrees counterclockwise from the direction of rows: 90
    /// or 270.</summary>
    [CgmCustom]
    public int LineProgressionDirection { get; set; } = 270;

    /// <summary>Gets or sets the count of tiles along a row.</summary>
    [CgmInteger]
    public int TilesInPathDirection { get; set; } = 1;

    /// <summary>Gets or sets the count of tiles across the rows.</summary>
    [CgmInteger]
    public int TilesInLineDirection { get; set; } = 1;

    /// <summary>Gets or sets the count of cells in a row of a tile.</summary>
    [CgmInteger]
    public int CellsPerTileInPathDirection { get; set; } = 1;

    /// <summary>Gets or sets the count of rows of a tile.</summary>
    [CgmInteger]
    public int CellsPerTileInLineDirection { get; set; } = 1;

    /// <summary>Gets or sets the size of a cell along a row.</summary>
    [CgmReal]
    public double CellSizeInPathDirection { get; set; } = 1;

    /// <summary>Gets or sets the size of a cell across the rows.</summary>
    [CgmReal]
    public double CellSizeInLineDirection { get; set; } = 1;

    /// <summary>Gets or sets the count of cells in a row of the first tiles that precede the image.</summary>
    [CgmInteger]
    public int ImageOffsetInPathDirection { get; set; }

    /// <summary>Gets or sets the count of rows of the first tiles that precede the image.</summary>
    [CgmInteger]
    public int ImageOffsetInLineDirection { get; set; }

    /// <summary>Gets or sets the count of cells in a row of the image.</summary>
    [CgmInteger]
    public int ImageCellsInPathDirection { get; set; } = 1;

    /// <summary>Gets or sets the count of rows of the image.</summary>
    [CgmInteger]
    public int ImageCellsInLineDirection { get; set; } = 1;

    private int ExchangeCellPathDirection(ParameterExchange x) => Direction(x, CellPathDirection, PathDirections);

    private int ExchangeLineProgressionDirection(ParameterExchange x) =>
        Direction(x, LineProgressionDirection, LineDirections);

    private static int Direction(ParameterExchange x, int degrees, int[] directions)
    {
        int at = x.IsReading ? 0 : Array.IndexOf(directions, degrees);
        return at >= 0
            ? directions[x.Enumeration(at, Keywords(directions))]
            : throw new CgmDataException(
                $"a direction of {degrees} degrees is none of {string.Join(", ", directions)}");
    }

    private static KeywordTable Keywords(int[] directions) => new(
        [.. Enumerable.Range(0, directions.Length)],
        Array.ConvertAll(directions, static degrees => degrees.ToString(CultureInfo.InvariantCulture)));
}

/// <summary>Ends a tile array.</summary>
[CgmCommand(DelimiterElement.EndTileArray, "ENDTILEARRAY")]
public sealed partial class EndTileArray : Command;

/// <summary>Begins an application structure: a part of the picture with a meaning for applications.</summary>
[CgmCommand(DelimiterElement.BeginApplicationStructure, "BEGAPS")]
[CgmConstructor(nameof(Identifier), nameof(StructureType))]
public sealed partial class BeginApplicationStructure : Command
{
    /// <summary>The sources of the attributes inside a structure.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum InheritanceFlag
    {
        /// <summary>The state before the structure.</summary>
        [CgmKeyword("STLIST")] StateList = 0,

        /// <summary>The structure around this one.</summary>
        [CgmKeyword("APS")] ApplicationStructure = 1,
    }

    /// <summary>Gets or sets the identifier, unique in its picture.</summary>
    [CgmString]
    public string Identifier { get; set; } = "";

    /// <summary>Gets or sets the type of the structure.</summary>
    [CgmString]
    public string StructureType { get; set; } = "";

    /// <summary>Gets or sets the source of attributes.</summary>
    [CgmEnum]
    public InheritanceFlag Inheritance { get; set; }
}

/// <summary>Ends the attributes of an application structure and begins its body.</summary>
[CgmCommand(DelimiterElement.BeginApplicationStructureBody, "BEGAPSBODY")]
public sealed partial class BeginApplicationStructureBody : Command;

/// <summary>Ends an application structure.</summary>
[CgmCommand(DelimiterElement.EndApplicationStructure, "ENDAPS")]
public sealed partial class EndApplicationStructure : Command;
