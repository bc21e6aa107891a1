namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A reader or writer of metafiles, as commands see it.</summary>
internal interface IParameterCodec
{
    /// <summary>Gets what fills commands or writes their parameters.</summary>
    ParameterExchange Exchange { get; }
}
