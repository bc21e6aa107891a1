using Korvan.CAD.CadExceptions;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The parameters of one element cannot be read or written. Who knows the file and the place adds
/// them.</summary>
internal sealed class CgmDataException(string message) : ImageException(message);
