using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Where the pictures begin in the file.</summary>
public sealed class PictureDirectory : Command
{
    /// <summary>Creates an empty directory.</summary>
    public PictureDirectory()
        : base(ClassCode.MetaFileDescriptorElement, (int)MetaFileDescriptorElement.PictureDirectory)
    {
    }

    /// <summary>The widths of places.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Type
    {
        /// <summary>8 bits.</summary>
        UInt8 = 0,

        /// <summary>16 bits.</summary>
        UInt16 = 1,

        /// <summary>32 bits.</summary>
        UInt32 = 2,
    }

    /// <summary>Gets or sets how wide places are in binary files.</summary>
    public Type LocationType { get; set; } = Type.UInt32;

    /// <summary>Gets or sets the entries.</summary>
    public List<PDInfo> Infos { get; set; } = [];

    internal override void Exchange(ParameterExchange x)
    {
        LocationType = x.Enumeration(LocationType, SharedWords.Widths);
        if (!System.Enum.IsDefined(LocationType))
        {
            throw new CgmDataException($"there is no width {(int)LocationType} of places");
        }

        int bits = 8 << (int)LocationType;
        Infos = x.Rest(Infos, (y, info) => ExchangeOne(y, info, bits));
    }

    private static PDInfo ExchangeOne(ParameterExchange x, PDInfo? info, int bits)
    {
        info ??= new PDInfo();
        info.Identifier = x.String(info.Identifier);
        info.Location = x.Unsigned(info.Location, bits);
        info.Directory = x.Unsigned(info.Directory, bits);
        return info;
    }

    /// <summary>Where one picture begins.</summary>
    public sealed class PDInfo
    {
        /// <summary>Creates an entry without name.</summary>
        public PDInfo()
        {
        }

        /// <summary>Gets or sets the name of the picture.</summary>
        public string Identifier { get; set; } = "";

        /// <summary>Gets or sets where the picture begins, in bytes from the beginning of the
        /// metafile; not negative.</summary>
        public long Location { get; set; }

        /// <summary>Gets or sets where the directory of its application structures begins, in bytes from the
        /// beginning of the metafile; 0 without one.</summary>
        public long Directory { get; set; }
    }
}
