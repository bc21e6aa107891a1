using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The version of the standard that the metafile conforms to.</summary>
[CgmCommand(MetaFileDescriptorElement.MetafileVersion, "MFVERSION", Default = "the version 1")]
[CgmConstructor(nameof(Version))]
public sealed partial class MetafileVersion : Command
{
    /// <summary>Gets or sets the version, 1 to 4.</summary>
    [CgmInteger]
    public int Version { get; set; } = 1;
}

/// <summary>A description of the metafile; profiles are named here.</summary>
[CgmCommand(MetaFileDescriptorElement.MetafileDescription, "MFDESC", Default = "an empty description")]
[CgmConstructor(nameof(Description))]
public sealed partial class MetafileDescription : Command
{
    /// <summary>Gets or sets the description.</summary>
    [CgmString]
    public string Description { get; set; } = "";
}

/// <summary>All elements that the metafile may contain.</summary>
[CgmCommand(MetaFileDescriptorElement.MetafileElementList, "MFELEMLIST")]
public sealed partial class MetafileElementList : Command
{
    /// <summary>The keywords of sets of elements, by their numbers in the class -1.</summary>
    private static readonly string[] Sets =
    [
        "DRAWINGSET", "DRAWINGPLUS", "VERSION2", "EXTDPRIM", "VERSION2GKSM", "VERSION3", "VERSION4",
    ];

    /// <summary>Gets or sets the keywords of the elements. Sets of elements have keywords too: DRAWINGSET, DRAWINGPLUS,
    /// VERSION2, EXTDPRIM, VERSION2GKSM, VERSION3 and VERSION4. An element without keyword is given as
    /// <c>class,number</c>.</summary>
    [CgmCustom]
    public List<string> Elements { get; set; } = ["DRAWINGPLUS"];

    private List<string> ExchangeElements(ParameterExchange x)
    {
        if (!x.IsClearText)
        {
            return x.Counted(Elements, static (y, keyword) => ExchangeOne(y, keyword));
        }

        string keywords = x.String(string.Join(' ', ParameterExchange.Needed(Elements, "a list")));
        return [.. keywords.Split((char[]?)null, StringSplitOptions.RemoveEmptyEntries)];
    }

    private static string ExchangeOne(ParameterExchange x, string? keyword)
    {
        (int elementClass, int id) = keyword is null ? (0, 0) : Numbers(keyword);
        return KeywordOf(x.Index(elementClass), x.Index(id));
    }

    private static string KeywordOf(int elementClass, int id)
    {
        string keyword = elementClass == -1
            ? Sets.ElementAtOrDefault(id) ?? ""
            : ElementTables.Keyword((ClassCode)elementClass, id);
        return keyword.Length > 0 ? keyword : FormattableString.Invariant($"{elementClass},{id}");
    }

    private static (int ElementClass, int Id) Numbers(string keyword)
    {
        int set = Array.FindIndex(Sets, each => each.Equals(keyword, StringComparison.OrdinalIgnoreCase));
        if (set >= 0)
        {
            return (-1, set);
        }

        if (ElementTables.Find(keyword) is { } entry)
        {
            return ((int)entry.Class, entry.Id);
        }

        string[] numbers = keyword.Split(',');
        int id = 0;
        return numbers.Length == 2 && int.TryParse(numbers[0], out int elementClass) && int.TryParse(numbers[1], out id)
            ? (elementClass, id)
            : throw new CgmDataException($"no element has the keyword '{keyword}'");
    }
}

/// <summary>Elements that replace the defaults of all pictures.</summary>
[CgmCommand(MetaFileDescriptorElement.MetafileDefaultsReplacement, "BEGMFDEFAULTS", Default = "an empty list")]
public sealed partial class MetafileDefaultsReplacement : Command
{
    /// <summary>Gets or sets the elements.</summary>
    public List<Command> Commands { get; set; } = [];

    internal override void Exchange(ParameterExchange x)
    {
        bool before = x.State.ReplacesDefaults;
        x.State.ReplacesDefaults = true;
        try
        {
            Commands = x.Commands(Commands);
        }
        finally
        {
            x.State.ReplacesDefaults = before;
        }
    }
}

/// <summary>A rectangle that encloses the VDC extents of all pictures.</summary>
[CgmCommand(MetaFileDescriptorElement.MaximumVdcExtent, "MAXVDCEXT")]
[CgmConstructor(nameof(FirstCorner), nameof(SecondCorner))]
public sealed partial class MaximumVdcExtent : Command
{
    /// <summary>Gets or sets the lower left corner, as the picture is displayed.</summary>
    [CgmPoint]
    public CgmPoint FirstCorner { get; set; } = new();

    /// <summary>Gets or sets the upper right corner, as the picture is displayed.</summary>
    [CgmPoint]
    public CgmPoint SecondCorner { get; set; } = new(32767, 32767);
}

/// <summary>The range of segment priorities.</summary>
[CgmCommand(MetaFileDescriptorElement.SegmentPriorityExtend, "SEGPRIEXT")]
public sealed partial class SegmentPriorityExtend : Command
{
    /// <summary>Gets or sets the smallest priority.</summary>
    [CgmInteger]
    public int Minimum { get; set; }

    /// <summary>Gets or sets the largest priority.</summary>
    [CgmInteger]
    public int Maximum { get; set; } = 255;
}

/// <summary>The locations of the pictures in the file.</summary>
[CgmCommand(MetaFileDescriptorElement.PictureDirectory, "PICDIR", Default = "an empty directory")]
public sealed partial class PictureDirectory : Command
{
    /// <summary>The data types of locations.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Type
    {
        /// <summary>Unsigned 8 bits.</summary>
        [CgmKeyword("UI8")] UInt8 = 0,

        /// <summary>Unsigned 16 bits.</summary>
        [CgmKeyword("UI16")] UInt16 = 1,

        /// <summary>Unsigned 32 bits.</summary>
        [CgmKeyword("UI32")] UInt32 = 2,
    }

    /// <summary>Gets or sets the data type of locations in binary files.</summary>
    [CgmEnum]
    public Type LocationType { get; set; } = Type.UInt32;

    /// <summary>Gets or sets the entries.</summary>
    [CgmCustom]
    public List<PDInfo> Infos { get; set; } = [];

    private List<PDInfo> ExchangeInfos(ParameterExchange x)
    {
        int bits = 8 << (int)LocationType;
        return x.Rest(Infos, (y, info) => PDInfo.Exchange(y, info, bits));
    }

    /// <summary>The location of one picture.</summary>
    public sealed class PDInfo
    {
        /// <summary>Creates an entry with an empty identifier.</summary>
        public PDInfo()
        {
        }

        /// <summary>Gets or sets the identifier of the picture.</summary>
        public string Identifier { get; set; } = "";

        /// <summary>Gets or sets the offset of the picture in bytes from the start of the metafile; not
        /// negative.</summary>
        public long Location { get; set; }

        /// <summary>Gets or sets the offset of its application structure directory in bytes from the start of the
        /// metafile; 0 without one.</summary>
        public long Directory { get; set; }

        /// <inheritdoc/>
        public override string ToString() => CommandText.Of("", Identifier, Location, Directory);

        internal static PDInfo Exchange(ParameterExchange x, PDInfo? info, int bits)
        {
            PDInfo one = x.IsReading ? new PDInfo() : ParameterExchange.Needed(info);
            one.Identifier = x.String(one.Identifier);
            one.Location = x.Unsigned(one.Location, bits);
            one.Directory = x.Unsigned(one.Directory, bits);
            return one;
        }
    }
}
