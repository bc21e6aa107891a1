using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Where the application structures of a picture begin in the file.</summary>
public sealed class ApplicationStructureDirectory : Command
{
    /// <summary>Creates an empty directory.</summary>
    public ApplicationStructureDirectory()
        : base(ClassCode.PictureDescriptorElement, (int)PictureDescriptorElement.ApplicationStructureDirectory)
    {
    }

    /// <summary>The widths of places.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum DataTypeSelector
    {
        /// <summary>8 bits.</summary>
        UInt8 = 0,

        /// <summary>16 bits.</summary>
        UInt16 = 1,

        /// <summary>32 bits.</summary>
        UInt32 = 2,
    }

    /// <summary>Gets or sets how wide places are in binary files.</summary>
    public DataTypeSelector LocationType { get; set; } = DataTypeSelector.UInt32;

    /// <summary>Gets or sets the entries.</summary>
    public List<ApplicationStructureInfo> Infos { get; set; } = [];

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

    private static ApplicationStructureInfo ExchangeOne(ParameterExchange x, ApplicationStructureInfo? info, int bits)
    {
        info ??= new ApplicationStructureInfo();
        info.Identifier = x.String(info.Identifier);
        info.Location = x.Unsigned(info.Location, bits);
        return info;
    }

    /// <summary>Where one structure begins.</summary>
    public sealed class ApplicationStructureInfo
    {
        /// <summary>Creates an entry without name.</summary>
        public ApplicationStructureInfo()
        {
        }

        /// <summary>Gets or sets the name of the structure.</summary>
        public string Identifier { get; set; } = "";

        /// <summary>Gets or sets where the structure begins, in bytes; not negative.</summary>
        public long Location { get; set; }
    }
}
