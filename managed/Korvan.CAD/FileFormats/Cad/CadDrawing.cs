using System;
using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.ImageOptions;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The data of a drawing: header, tables, blocks, layouts, entities and objects. Codecs fill and write it,
/// renderers read it, and <see cref="CadImage"/> shows it to programs.</summary>
internal sealed class CadDrawing
{
    private byte[] _thumbnail = [];
    private Func<byte[]>? _readThumbnail;

    /// <summary>Creates a drawing.</summary>
    /// <param name="seed">What it has from the start.</param>
    internal CadDrawing(DrawingSeed seed)
    {
        ModelSpace = new CadBlockEntity { Name = BlockNames.ModelSpace, NameAgain = BlockNames.ModelSpace };
        PaperSpace = new CadBlockEntity { Name = BlockNames.PaperSpace, NameAgain = BlockNames.PaperSpace };
        if (seed == DrawingSeed.Standard)
        {
            StandardDrawing.Fill(this);
        }
    }

    internal CadHeader Header { get; } = new();

    internal CadBlockDictionary BlockEntities { get; } = new();

    internal CadBlockRecordList BlockRecords { get; } = new();

    internal CadLayersList Layers { get; } = new();

    internal CadLineTypesDictionary LineTypes { get; } = new();

    internal CadStylesList Styles { get; } = new();

    internal CadDimensionDictionary DimensionStyles { get; } = new();

    internal CadViewList Views { get; } = new();

    internal CadVportList ViewPorts { get; } = new();

    internal CadUcsList UCSs { get; } = new();

    internal CadAppIdDictionary AppIdTables { get; } = new();

    internal CadClassList ClassEntities { get; } = new();

    internal CadLayoutDictionary Layouts { get; } = new();

    internal CheckedList<CadObjectBase> Objects { get; } = new("objects");

    /// <summary>Gets or sets the block of model space.</summary>
    internal CadBlockEntity ModelSpace { get; set; }

    /// <summary>Gets or sets the block of the active layout of paper space.</summary>
    internal CadBlockEntity PaperSpace { get; set; }

    internal IList<CadEntityBase> Entities => ModelSpace.Entities;

    internal IList<CadEntityBase> PaperSpaceEntities => PaperSpace.Entities;

    /// <summary>Gets or sets the preview image, a bitmap without its file header; empty for none.</summary>
    internal byte[] ThumbnailImage
    {
        get
        {
            if (_readThumbnail is { } read)
            {
                ThumbnailImage = read();
            }

            return _thumbnail;
        }

        set => (_thumbnail, _readThumbnail) = (value, null);
    }

    /// <summary>Gets what a drawing database has beside its objects and variables.</summary>
    internal DrawingProperties Properties { get; init; } = new();

    /// <summary>Gets the data section.</summary>
    internal CadAcdsData AcdsData { get; } = new();

    /// <summary>Gets or sets whether the file has a block for model space; old ones need not.</summary>
    internal bool ModelSpaceInFile { get; set; }

    /// <summary>Gets or sets whether the file has a block for paper space; old ones need not.</summary>
    internal bool PaperSpaceInFile { get; set; }

    /// <summary>Gets the headers of the symbol tables by the names of the tables.</summary>
    internal Dictionary<string, CadTableHeader> TableHeaders { get; } = [];

    /// <summary>Gets sections that the library does not interpret, in the order of the file.</summary>
    internal List<RawSection> RawSections { get; } = [];

    /// <summary>Gets or sets the folder in which files are looked for that the drawing refers to; null for
    /// none.</summary>
    internal string? Folder { get; set; }

    /// <summary>Gets or sets the unit that is assumed where the header states none.</summary>
    internal UnitType DefaultUnitType { get; set; } = UnitType.Unitless;

    /// <summary>Gets or sets whether the drawing was read from a binary file, and is written as one.</summary>
    internal bool IsBinary { get; set; }

    /// <summary>Gets or sets the release that the content is of, whatever the header says by now; null for that of the
    /// header.</summary>
    internal CadAcadVersion? ContentRelease { get; set; }

    internal CadAcadVersion Version => Header.AcadVersion;

    internal UnitType UnitType => DrawingUnits.FromInsUnits(Header.InsUnits) is var unit
        && unit == UnitType.Unitless ? DefaultUnitType : unit;

    /// <summary>Gets how many entities of model space, paper space and all blocks are of an unknown type.</summary>
    internal int UnknownEntityCount
    {
        get
        {
            int count = CountUnknown(PaperSpace) + CountUnknown(ModelSpace);
            foreach (CadBlockEntity block in BlockEntities)
            {
                count += block == ModelSpace || block == PaperSpace ? 0 : CountUnknown(block);
            }

            return count;
        }
    }

    /// <summary>Sets the function that returns the preview image when it is asked for.</summary>
    internal void DeferThumbnail(Func<byte[]> read) => _readThumbnail = read;

    private static int CountUnknown(CadBlockEntity block) =>
        block.Entities.FindAll(static entity => entity is RawEntity).Count;
}
