using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Data of an application, which drawing passes over.</summary>
public sealed class ApplicationData : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public ApplicationData()
        : base(ClassCode.ExternalElement, (int)ExternalElement.ApplicationData)
    {
    }

    /// <summary>Gets or sets what the data is.</summary>
    public int Identifier { get; set; }

    /// <summary>Gets or sets the data.</summary>
    public byte[] Data { get; set; } = [];

    internal override void Exchange(ParameterExchange x)
    {
        Identifier = x.Integer(Identifier);
        Data = x.Data(Data);
    }
}
