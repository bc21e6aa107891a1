using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The blocks of a drawing, model and paper space among them.</summary>
[NamedObjects(typeof(CadBlockEntity), "block")]
public partial class CadBlockDictionary : NonGenericDictionary;
