using Korvan.CAD.CadExceptions;

namespace Korvan.CAD.FileFormats.Cgm.Coding;

/// <summary>The parameters of one element cannot be read or written. Whoever knows the file and the place adds
/// them.</summary>
internal sealed class CgmDataException(string message) : ImageException(message);
