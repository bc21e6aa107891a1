using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>What proxies in text files have of an object that no class interprets.</summary>
/// <param name="Format">The number that drawing databases have for their release.</param>
/// <param name="Bits">The number of bits of data.</param>
/// <param name="Data">The data with its strings.</param>
/// <param name="References">The references, each with the group code of its kind.</param>
internal sealed record ProxyContent(int Format, long Bits, byte[] Data, IList<CadCodeValue> References);
