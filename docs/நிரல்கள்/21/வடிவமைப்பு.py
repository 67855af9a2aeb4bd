from abc import ABC, abstractmethod


class உயிர்(ABC):
    @abstractmethod
    def ஒலி(self): ...


class நாய்(உயிர்):
    def ஒலி(self):
        return "வள் வள்"


செல்லம் = நாய்()
print(செல்லம்.ஒலி())
