namespace Korvan.CAD.Rendering.Meshes;

/// <summary>What a mesh format asks of a scene.</summary>
/// <param name="MergeLayers">Whether faces of one layer and colour are joined into one mesh.</param>
/// <param name="DoubleSided">Whether faces are seen from both sides.</param>
internal readonly record struct MeshRequest(bool MergeLayers = false, bool DoubleSided = true);
