using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Something that no element of the format says; its number is registered, or private when negative.</summary>
[CgmCommand(ClassCode.EscapeElement, 1, "ESCAPE")]
public sealed partial class Escape : Command
{
    /// <summary>Gets or sets what is said.</summary>
    [CgmInteger]
    public int Identifier { get; set; }

    /// <summary>Gets or sets the data.</summary>
    [CgmData]
    public byte[] Data { get; set; } = [];
}

/// <summary>A message to the person at the machine.</summary>
[CgmCommand(ExternalElement.MessageCommand, "MESSAGE")]
public sealed partial class MessageCommand : Command
{
    /// <summary>Whether the person has to do something.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum ActionType
    {
        /// <summary>No.</summary>
        [CgmKeyword("NOACTION")]
        NoAction = 0,

        /// <summary>Yes; drawing waits.</summary>
        [CgmKeyword("ACTION")]
        Action = 1,
    }

    /// <summary>Gets or sets whether the person has to do something.</summary>
    [CgmEnum]
    public ActionType Action { get; set; }

    /// <summary>Gets or sets the message.</summary>
    [CgmString]
    public string Message { get; set; } = "";
}

/// <summary>Data of an application, which drawing passes over.</summary>
[CgmCommand(ExternalElement.ApplicationData, "APPLDATA")]
public sealed partial class ApplicationData : Command
{
    /// <summary>Gets or sets what the data is.</summary>
    [CgmInteger]
    public int Identifier { get; set; }

    /// <summary>Gets or sets the data.</summary>
    [CgmData]
    public byte[] Data { get; set; } = [];
}

/// <summary>An attribute of the application structure that was begun last.</summary>
[CgmCommand(ApplicationStructureDescriptorElement.ApplicationStructureAttribute, "APSATTR")]
public sealed partial class ApplicationStructureAttribute : Command
{
    /// <summary>Gets or sets what kind of attribute it is.</summary>
    [CgmString]
    public string AttributeType { get; set; } = "";

    /// <summary>Gets or sets its values.</summary>
    [CgmRecord]
    public StructuredDataRecord Value { get; set; } = new();
}

/// <summary>Where the application structures of a picture begin in the file.</summary>
[CgmCommand(PictureDescriptorElement.ApplicationStructureDirectory, "APSDIR",
    Default = "an empty directory")]
public sealed partial class ApplicationStructureDirectory : Command
{
    /// <summary>The widths of places.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum DataTypeSelector
    {
        /// <summary>8 bits.</summary>
        [CgmKeyword("UI8")]
        UInt8 = 0,

        /// <summary>16 bits.</summary>
        [CgmKeyword("UI16")]
        UInt16 = 1,

        /// <summary>32 bits.</summary>
        [CgmKeyword("UI32")]
        UInt32 = 2,
    }

    /// <summary>Gets or sets how wide places are in binary files.</summary>
    [CgmEnum]
    public DataTypeSelector LocationType { get; set; } = DataTypeSelector.UInt32;

    /// <summary>Gets or sets the entries.</summary>
    [CgmCustom]
    public List<ApplicationStructureInfo> Infos { get; set; } = [];

    private List<ApplicationStructureInfo> ExchangeInfos(ParameterExchange x)
    {
        int bits = 8 << (int)LocationType;
        return x.Rest(Infos, (y, info) => ApplicationStructureInfo.Exchange(y, info, bits));
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

        /// <inheritdoc/>
        public override string ToString() => CommandText.Of("", Identifier, Location);

        internal static ApplicationStructureInfo Exchange(ParameterExchange x, ApplicationStructureInfo? info, int bits)
        {
            ApplicationStructureInfo one = x.IsReading ? new ApplicationStructureInfo() : ParameterExchange.Needed(info);
            one.Identifier = x.String(one.Identifier);
            one.Location = x.Unsigned(one.Location, bits);
            return one;
        }
    }
}
