using System.Collections.Generic;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Functionality outside the standard, selected by an identifier that is registered, or private when
/// negative.</summary>
[CgmCommand(ClassCode.EscapeElement, 1, "ESCAPE")]
public sealed partial class Escape : Command
{
    /// <summary>Gets or sets the identifier of the function.</summary>
    [CgmInteger]
    public int Identifier { get; set; }

    /// <summary>Gets or sets the data record of the function.</summary>
    [CgmData]
    public byte[] Data { get; set; } = [];
}

/// <summary>A message to the operator of the interpreter.</summary>
[CgmCommand(ExternalElement.MessageCommand, "MESSAGE")]
public sealed partial class MessageCommand : Command
{
    /// <summary>Whether the operator has to respond.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum ActionType
    {
        /// <summary>No response is needed.</summary>
        [CgmKeyword("NOACTION")] NoAction = 0,

        /// <summary>The interpreter waits for a response.</summary>
        [CgmKeyword("ACTION")] Action = 1,
    }

    /// <summary>Gets or sets whether the operator has to respond.</summary>
    [CgmEnum]
    public ActionType Action { get; set; }

    /// <summary>Gets or sets the message.</summary>
    [CgmString]
    public string Message { get; set; } = "";
}

/// <summary>Data of an application; it is not drawn.</summary>
[CgmCommand(ExternalElement.ApplicationData, "APPLDATA")]
public sealed partial class ApplicationData : Command
{
    /// <summary>Gets or sets the identifier of the kind of data.</summary>
    [CgmInteger]
    public int Identifier { get; set; }

    /// <summary>Gets or sets the data.</summary>
    [CgmData]
    public byte[] Data { get; set; } = [];
}

/// <summary>An attribute of the open application structure.</summary>
[CgmCommand(ApplicationStructureDescriptorElement.ApplicationStructureAttribute, "APSATTR")]
public sealed partial class ApplicationStructureAttribute : Command
{
    /// <summary>Gets or sets the type of the attribute.</summary>
    [CgmString]
    public string AttributeType { get; set; } = "";

    /// <summary>Gets or sets the values of the attribute.</summary>
    [CgmRecord]
    public StructuredDataRecord Value { get; set; } = new();
}

/// <summary>The locations of the application structures of a picture in the file.</summary>
[CgmCommand(PictureDescriptorElement.ApplicationStructureDirectory, "APSDIR", Default = "an empty directory")]
public sealed partial class ApplicationStructureDirectory : Command
{
    /// <summary>The data types of locations.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum DataTypeSelector
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
    public DataTypeSelector LocationType { get; set; } = DataTypeSelector.UInt32;

    /// <summary>Gets or sets the entries.</summary>
    [CgmCustom]
    public List<ApplicationStructureInfo> Infos { get; set; } = [];

    private List<ApplicationStructureInfo> ExchangeInfos(ParameterExchange x)
    {
        int bits = 8 << (int)LocationType;
        return x.Rest(Infos, (y, info) => ApplicationStructureInfo.Exchange(y, info, bits));
    }

    /// <summary>The location of one application structure.</summary>
    public sealed class ApplicationStructureInfo
    {
        /// <summary>Creates an entry with an empty identifier.</summary>
        public ApplicationStructureInfo()
        {
        }

        /// <summary>Gets or sets the identifier of the structure.</summary>
        public string Identifier { get; set; } = "";

        /// <summary>Gets or sets the offset of the structure in bytes; not negative.</summary>
        public long Location { get; set; }

        /// <inheritdoc/>
        public override string ToString() => CommandText.Of("", Identifier, Location);

        internal static ApplicationStructureInfo Exchange(ParameterExchange x, ApplicationStructureInfo? info, int bits)
        {
            ApplicationStructureInfo one =
                x.IsReading ? new ApplicationStructureInfo() : ParameterExchange.Needed(info);
            one.Identifier = x.String(one.Identifier);
            one.Location = x.Unsigned(one.Location, bits);
            return one;
        }
    }
}
