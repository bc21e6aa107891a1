using System;

namespace Korvan.CAD.CadExceptions;

/// <summary>An operation was ended before it finished, for instance because its time was up.</summary>
public class OperationInterruptedException : FrameworkException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    public OperationInterruptedException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and the failure behind it.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    /// <param name="innerException">The failure that led here.</param>
    public OperationInterruptedException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}
